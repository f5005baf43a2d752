// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/options_dialog.h"

#include "shell/option_values.h"
#include "shell/task_bar_metrics.h"

#include <algorithm>

namespace velmoriax::shell {

namespace {

/// Of the option buttons of one group a single one is chosen; check boxes have no group.
enum class Group { none, throws, tooltip, hemisphere, cards, minimize };

using Dialog = OptionsDialog;

struct Row {
    Option option;
    std::string_view name;
    Group group;
    void (Dialog::*guardar)(std::string_view); ///< null for the one control that writes only after a test
    std::string_view onValue;
    std::string_view offValue;
    std::string OptionHolders::*holder = nullptr; ///< set at once; without one the change acts at the next load
    void (Dialog::*then)() = nullptr;
};

using H = OptionHolders;
using O = Option;
using G = Group;

const std::array<Row, optionCount> rows{{
    {O::OptReal, "OptReal", G::throws, &Dialog::GuardarIni, word::real, "", nullptr, &Dialog::setThrow},
    {O::OptObj, "OptObj", G::throws, &Dialog::GuardarIni, word::objetiva, "", nullptr, &Dialog::setThrow},
    {O::CheckWin, "CheckWin", G::none, &Dialog::GuardarIniWin, "True", "False", nullptr,
     &Dialog::writeOrEraseAutostart},
    {O::CheckMini, "CheckMini", G::none, &Dialog::GuardarIniMini, "True", "False"},
    {O::CheckTooltips, "CheckTooltips", G::none, &Dialog::GuardarTooltips, word::tooltipsOff, word::tooltipsOn,
     &H::tooltips, &Dialog::enableTooltipControls},
    {O::OptionPersonal, "OptionPersonal", G::tooltip, nullptr, word::personal, "", nullptr, &Dialog::testTaskBar},
    {O::OptionXP, "OptionXP", G::tooltip, &Dialog::GuardarEstiloTooltips, word::windowsXp, "", &H::estiloTooltips,
     &Dialog::allowSilentMode},
    {O::OptionNorte, "OptionNorte", G::hemisphere, &Dialog::GuardarHemisferio, word::norte, "", &H::hemisferio},
    {O::OptionSur, "OptionSur", G::hemisphere, &Dialog::GuardarHemisferio, word::sur, "", &H::hemisferio},
    {O::OptionBeauty, "OptionBeauty", G::cards, &Dialog::GuardarTipocarta, word::marsellaone, "", &H::tipocartas},
    {O::OptionClassic, "OptionClassic", G::cards, &Dialog::GuardarTipocarta, word::marsellaclass, "", &H::tipocartas},
    {O::OptionFree, "OptionFree", G::cards, &Dialog::GuardarTipocarta, word::oldones, "", &H::tipocartas},
    {O::CheckNoSound, "CheckNoSound", G::none, &Dialog::GuardarNoSoundtips, word::mudo, word::nomudo,
     &H::modoSilencioso},
    {O::CheckCardDayMute, "CheckCardDayMute", G::none, &Dialog::GuardarMutecod, word::nomuted, word::muted,
     &H::muteCod},
    {O::CheckBgSound, "CheckBgSound", G::none, &Dialog::GuardarBgSound, word::siBgSound, word::noBgSound, &H::bgSound},
    {O::OptionSystray, "OptionSystray", G::minimize, &Dialog::GuardarMinimizar, word::systray, "", &H::minimizeTo},
    {O::OptionToolbar, "OptionToolbar", G::minimize, &Dialog::GuardarMinimizar, word::toolbar, "", &H::minimizeTo},
}};

const Row& rowOf(Option option) {
    return *std::ranges::find(rows, option, &Row::option);
}

/// The option button of a stored value, within the group of `otherwise`, which is chosen for every other text.
Option buttonOf(std::string_view value, Option otherwise) {
    const Group group = rowOf(otherwise).group;
    const auto* row =
        std::ranges::find_if(rows, [&](const Row& each) { return each.group == group && each.onValue == value; });
    return row == rows.end() ? otherwise : row->option;
}

/// The place of a text in a table's column; the first entry for every other text.
template<typename Table, typename Column>
int entryOf(const Table& table, std::string_view text, Column column) {
    const auto found = std::ranges::find(table, text, column);
    return found == table.end() ? 0 : static_cast<int>(found - table.begin());
}

} // namespace

std::string_view controlName(Option option) {
    return rowOf(option).name;
}

bool isCheckBox(Option option) {
    return rowOf(option).group == Group::none;
}

void OptionsDialog::LeerIni(const std::string& lpFileName, std::string_view lpAppName, std::string_view /*lpKeyName*/,
                            std::string_view vDefault) {
    const auto read = [&](std::string_view key) {
        return orDefault(options_.readProfileString(lpAppName, key, lpFileName), vDefault);
    };
    setChosen(buttonOf(read(key::tirada), O::OptObj));
    setCheck(O::CheckWin, read(key::iniciarConWindows) == "True");
    setCheck(O::CheckMini, read(key::iniciarMinimizado) == "True");
    setEntry(OptionList::Combolist, entryOf(modules_, read(key::moduloInicial), &ModuleInfo::initialText));
    setEntry(OptionList::ComboBio, entryOf(alertLevels, read(key::nivelAlertas), &AlertLevel::caption));
    setCheck(O::CheckTooltips, read(key::desactivarTooltips) == word::tooltipsOff);
    // Only a style that the file spells out leaves the silent mode open. The classic style that is chosen for a missing
    // one does not: it opens with a click on it.
    const std::string style = read(key::estiloTooltips);
    setChosen(buttonOf(style, O::OptionXP));
    state_[O::CheckNoSound].enabled = style == rowOf(O::OptionXP).onValue;
    setChosen(buttonOf(read(key::hemisferio), O::OptionNorte));
    setChosen(buttonOf(read(key::tipocartas), O::OptionBeauty));
    setCheck(O::CheckNoSound, read(key::modoSilencioso) == word::mudo);
    // The midnight card is on unless the file says otherwise. Its holder is set here too, since a box that stays
    // unchecked runs no handler.
    setCheck(O::CheckCardDayMute, read(key::muteCod) != word::muted);
    holders().muteCod = state_[O::CheckCardDayMute].on ? word::nomuted : word::muted;
    setCheck(O::CheckBgSound, read(key::backgroundSound) == word::siBgSound);
    setChosen(buttonOf(read(key::minimizar), O::OptionSystray));
}

void OptionsDialog::click(Option option) {
    if (isCheckBox(option)) return setCheck(option, !state_[option].on);
    pressIn(option);
    runHandler(option);
}

void OptionsDialog::choose(OptionList list, int entry) {
    state_[list] = entry;
    const auto at = static_cast<std::size_t>(entry);
    if (list == OptionList::Combolist) return GuardarCombolist(modules_.at(at)->initialText);
    const std::string_view text = alertLevels.at(at).caption;
    GuardarCombobio(text);
    holders().alertLevel = alertLevelOfSpanishCaption(text);
}

void OptionsDialog::setCheck(Option option, bool on) {
    if (state_[option].on == on) return;
    state_[option].on = on;
    runHandler(option);
}

void OptionsDialog::setChosen(Option option) {
    if (state_[option].on) return;
    pressIn(option);
    runHandler(option);
}

void OptionsDialog::setEntry(OptionList list, int entry) {
    if (state_[list] != entry) choose(list, entry);
}

void OptionsDialog::pressIn(Option option) {
    for (const Row& row : rows)
        if (row.group == rowOf(option).group) state_[row.option].on = row.option == option;
}

void OptionsDialog::runHandler(Option option) {
    const Row& row = rowOf(option);
    const std::string_view value = state_[option].on ? row.onValue : row.offValue;
    if (row.guardar) (this->*row.guardar)(value);
    if (row.holder) holders().*row.holder = value;
    if (row.then) (this->*row.then)();
}

void OptionsDialog::writeOrEraseAutostart() {
    state_[O::CheckWin].on ? WriteIniWin() : EraseIniWin();
}

void OptionsDialog::setThrow() {
    holders().realThrow = state_[O::OptReal].on;
}

void OptionsDialog::enableTooltipControls() {
    // Switching the tips on again opens the silent mode for the personal style as well, until the next opening.
    for (const Option option : {O::OptionXP, O::OptionPersonal, O::CheckNoSound})
        state_[option].enabled = !state_[O::CheckTooltips].on;
}

void OptionsDialog::allowSilentMode() {
    state_[O::CheckNoSound].enabled = true;
}

void OptionsDialog::testTaskBar() {
    getTaskBarMetrics(desktop_.taskBar, shellState_);
    bool& atBottom = shellState_.taskBarAtBottom;
    atBottom = shellState_.taskBarLocation == platform::TaskBarPosition::bottomEdge;
    if (atBottom) {
        GuardarEstiloTooltips(word::personal);
        holders().estiloTooltips = word::personal;
        state_[O::CheckNoSound].enabled = false;
        return;
    }
    desktop_.boxes.show(platform::BoxIcon::warning,
                        "Personal tooltip only is supported with the taskbar at the bottom.", "Info Tooltip");
    setChosen(O::OptionXP);
}

} // namespace velmoriax::shell
