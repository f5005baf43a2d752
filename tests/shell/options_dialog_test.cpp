// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/windows1252.h"
#include "shell/options_dialog.h"
#include "support/fakes.h"

#include <algorithm>

namespace velmoriax::shell {
namespace {

using O = Option;

/// A file that holds every key, so that opening the dialog finds nothing to fill in.
constexpr const char* wholeFile =
    "[opciones]\r\nTirada=objetiva\r\nIniciar con Windows=False\r\nIniciar Minimizado=False\r\nMódulo "
    "Inicial=Oracle\r\n"
    "Nivel Alertas=None\r\nDesactivar Tooltips=ToolTips on\r\nEstilo Tooltips=windows xp\r\nHemisferio=Norte\r\n"
    "tipocartas=marsellaone\r\nModo Silencioso=nomudo\r\nMute cod=nomuted\r\nBackground Sound=NoBgSound\r\n"
    "Minimizar=systray\r\n";

const ModuleInfo card{"FrmCartaDia", "The Card of Day..."};
const ModuleInfo otherDay{"FrmCalendar", "Another Day..."};
const ModuleInfo oracle{"Frmoracle", "Oracle"};
const ModuleInfo names{"FrmName", "Names"};
const ModuleInfo numbers{"frmVelmoriax", "Numbers"};
const ModuleInfo biorhythms{"frmBio", "Biorhythms"};
const ModuleList modules{&card, &otherDay, &oracle, &names, &numbers, &biorhythms};

struct OptionsDialogTest : testing::Test {
    void write(std::string_view utf8) { files_.at("\\opciones.ini") = base::toWindows1252(utf8); }
    std::string option(std::string_view key) const { return options_.option(key); }
    OptionHolders& holders() { return options_.holders; }
    void open(OptionsDialog& dialog) { dialog.LeerIni(options_.fileName(), "opciones", ""); }
    void panelAt(platform::TaskBarPosition::Edge edge) {
        taskBar_.where = platform::TaskBarPosition{0, 0, 100, 30, edge};
    }

    test::FakeFiles files_;
    test::FakeAutostart autostart_;
    test::FakeBoxes boxes_;
    test::FakeTaskBar taskBar_;
    OptionsStore options_{files_};
    ShellState state_;
    OptionsDialog dialog_{options_, state_, {autostart_, boxes_, taskBar_}, modules};
};

TEST_F(OptionsDialogTest, AnEmptyFileShowsTheDefaults) {
    open(dialog_);
    const OptionControls& state = dialog_.state();
    for (const O on : {O::OptObj, O::OptionXP, O::OptionNorte, O::OptionBeauty, O::OptionSystray, O::CheckCardDayMute})
        EXPECT_TRUE(state[on].on) << controlName(on);
    EXPECT_EQ(std::ranges::count(state.controls, true, &OptionControls::Control::on), 6);
    EXPECT_EQ(state[OptionList::Combolist], 0);
    EXPECT_EQ(state[OptionList::ComboBio], 0);
    EXPECT_EQ(holders().muteCod, "nomuted");
    EXPECT_EQ(autostart_.writes, 0);
    EXPECT_FALSE(options_.holders.realThrow);
}

TEST_F(OptionsDialogTest, StoredValuesAreComparedExactly) {
    const test::Table<std::string, O, bool, const char*> rows{
        {"Tirada=Real", O::OptObj, true, "another case is another text"},
        {"Iniciar con Windows=Verdadero", O::CheckWin, false, "the Spanish word counts in modules alone"},
        {"Hemisferio=sur", O::OptionNorte, true, "all else is north"},
        {"tipocartas=foo", O::OptionBeauty, true, "an unknown deck shows as the first"},
        {"tipocartas=toolbar", O::OptionBeauty, true, "a value of another group chooses nothing here"},
        {"Mute cod=muted", O::CheckCardDayMute, false, "the box says the opposite of the key"},
        {"Minimizar=x", O::OptionSystray, true, "the dialog shows the tray where the start takes the toolbar"},
    };
    for (const auto& [line, option, on, why] : rows) {
        write("[opciones]\r\n" + line + "\r\n");
        OptionsDialog dialog{options_, state_, {autostart_, boxes_, taskBar_}, modules};
        open(dialog);
        EXPECT_EQ(dialog.state()[option].on, on) << line << ": " << why;
    }
}

TEST_F(OptionsDialogTest, DefaultsAndClicksActAtOnceAndAreFoundAtTheNextOpening) {
    const auto acting = [](const OptionHolders& h) {
        return std::array{h.tipocartas, h.minimizeTo, h.hemisferio, h.modoSilencioso,
                          h.muteCod,    h.bgSound,    h.tooltips,   h.estiloTooltips};
    };
    const auto readAll = [](OptionsStore& options) {
        options.readAtStart();
        options.readAtModuleLoad();
        options.readAtCardOfDayLoad();
    };
    readAll(options_);
    EXPECT_EQ(holders().alertLevel, "maxi");
    const auto ofEmptyFile = acting(holders());
    write(wholeFile);
    readAll(options_);
    EXPECT_EQ(acting(holders()), ofEmptyFile) << "a missing value acts as the one of the whole file";
    open(dialog_);
    for (const O clicked :
         {O::CheckMini,    O::CheckMini,    O::OptReal,       O::OptObj,           O::OptionClassic,
          O::OptionFree,   O::OptionBeauty, O::OptionToolbar, O::OptionSystray,    O::OptionSur,
          O::OptionNorte,  O::CheckNoSound, O::CheckNoSound,  O::CheckCardDayMute, O::CheckCardDayMute,
          O::CheckBgSound, O::CheckBgSound, O::CheckTooltips, O::CheckTooltips,    O::OptionXP}) {
        dialog_.click(clicked);
        OptionsStore later{files_};
        readAll(later);
        EXPECT_EQ(acting(holders()), acting(later.holders)) << controlName(clicked);
        EXPECT_EQ(options_.holders.realThrow, option(key::tirada) == "real") << controlName(clicked);
        OptionsDialog again{options_, state_, {autostart_, boxes_, taskBar_}, modules};
        open(again);
        EXPECT_EQ(again.state()[clicked].on, dialog_.state()[clicked].on) << controlName(clicked);
    }
    EXPECT_EQ(files_.at("\\opciones.ini"), base::toWindows1252(wholeFile))
        << "each change went to its own line, and back";
}

TEST_F(OptionsDialogTest, OpeningTurnsTheAlertLevelToTheLoudestAndLeavesAWholeFileAlone) {
    write(wholeFile);
    options_.readAtStart();
    ASSERT_EQ(holders().alertLevel, "zero");
    open(dialog_);
    EXPECT_EQ(holders().alertLevel, "maxi") << "English text against the Spanish table";
    EXPECT_EQ(files_.at("\\opciones.ini"), base::toWindows1252(wholeFile));

    dialog_.choose(OptionList::ComboBio, 5);
    EXPECT_EQ(option(key::nivelAlertas), "Medium (change of phase + critical  + actual s.)");
    EXPECT_EQ(holders().alertLevel, "maxi");
    options_.readAtStart();
    EXPECT_EQ(holders().alertLevel, "med1") << "the next start reads the file";

    dialog_.choose(OptionList::Combolist, 5);
    EXPECT_EQ(option(key::moduloInicial), "Biorhythms");
}

TEST_F(OptionsDialogTest, TheAutostartEntryFollowsTheBoxAndIsRenewedAtEachOpening) {
    open(dialog_);
    dialog_.click(O::CheckWin);
    EXPECT_EQ(autostart_.entries, std::set<std::string>{"Velmoriax"});
    EXPECT_EQ(option(key::iniciarConWindows), "True");

    autostart_.entries.clear(); // somebody took it away
    OptionsDialog again{options_, state_, {autostart_, boxes_, taskBar_}, modules};
    open(again);
    EXPECT_EQ(autostart_.entries.size(), 1U);
    again.click(O::CheckWin);
    EXPECT_TRUE(autostart_.entries.empty());
    EXPECT_EQ(option(key::iniciarConWindows), "False");
}

TEST_F(OptionsDialogTest, ThePersonalTipNeedsThePanelAtTheBottom) {
    write(wholeFile);
    open(dialog_);
    panelAt(platform::TaskBarPosition::rightEdge);
    dialog_.click(O::OptionPersonal);
    const test::FakeBoxes::Shown refusal{platform::BoxIcon::warning,
                                         "Personal tooltip only is supported with the taskbar at the bottom.",
                                         "Info Tooltip"};
    EXPECT_EQ(boxes_.shown, std::vector{refusal});
    EXPECT_TRUE(dialog_.state()[O::OptionXP].on);
    EXPECT_TRUE(dialog_.state()[O::CheckNoSound].enabled);
    EXPECT_EQ(option(key::estiloTooltips), "windows xp");

    panelAt(platform::TaskBarPosition::bottomEdge);
    dialog_.click(O::OptionPersonal);
    EXPECT_EQ(boxes_.shown.size(), 1U);
    EXPECT_TRUE(state_.taskBarAtBottom);
    EXPECT_FALSE(dialog_.state()[O::CheckNoSound].enabled);
    EXPECT_EQ(holders().estiloTooltips, "personal");

    panelAt(platform::TaskBarPosition::topEdge);
    OptionsDialog later{options_, state_, {autostart_, boxes_, taskBar_}, modules};
    open(later);
    EXPECT_EQ(boxes_.shown.size(), 2U) << "a stored personal style is tested at each opening";
    EXPECT_FALSE(state_.taskBarAtBottom);
    EXPECT_EQ(option(key::estiloTooltips), "windows xp");
    EXPECT_FALSE(later.state()[O::CheckNoSound].enabled) << "the file said personal when the dialog opened";
}

TEST_F(OptionsDialogTest, TheSilentModeOpensAndClosesWithTheStyle) {
    const auto silent = [&] { return dialog_.state()[O::CheckNoSound].enabled; };
    open(dialog_);
    EXPECT_FALSE(silent()) << "a missing style shows as classic and keeps it closed";
    dialog_.click(O::OptionXP);
    EXPECT_TRUE(silent()) << "a click on what is chosen already";

    panelAt(platform::TaskBarPosition::bottomEdge);
    dialog_.click(O::OptionPersonal);
    dialog_.click(O::CheckTooltips);
    for (const O option : {O::OptionXP, O::OptionPersonal, O::CheckNoSound})
        EXPECT_FALSE(dialog_.state()[option].enabled) << controlName(option);
    dialog_.click(O::CheckTooltips);
    EXPECT_TRUE(silent()) << "with the personal style chosen, until the next opening";
}

} // namespace
} // namespace velmoriax::shell
