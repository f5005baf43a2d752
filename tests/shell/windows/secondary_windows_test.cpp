// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/windows/frm_about.h"
#include "shell/windows/frm_options.h"
#include "shell/windows/notif.h"
#include "shell/windows/notifications.h"
#include "shell/windows/shell_windows.h"
#include "shell/windows/sliding_notification.h"
#include "support/window_fixture.h"
#include "widgets/link_label.h"

#include <QComboBox>
#include <QLabel>

#include <QPointer>
#include <QScreen>
#include <algorithm>

namespace velmoriax::shell {
namespace {

const ModuleInfo module{"Module", "Module"};

struct SecondaryWindowsTest : test::WindowFixture {
    SecondaryWindowsTest() {
        addWindows(windows, context);
        windows.addModule(module, [] { return nullptr; });
    }

    template<typename Window>
    Window& touch() {
        Window& window = windows.touch<Window>();
        window.showNormalState();
        return window;
    }
    /// At the left end, where the mark is: a button answers on its mark and caption alone.
    void click(const QWidget& window, const char* name) {
        auto& widget = control<QWidget>(window, name);
        QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(12, widget.height() / 2));
    }
};

TEST_F(SecondaryWindowsTest, EveryOptionStandsUnderItsCaptionAndObeysTheMouse) {
    const FrmOptions& window = touch<FrmOptions>();
    EXPECT_EQ(window.windowTitle(), "Options");
    const test::Table<const char*, const char*, std::string_view, const char*> rows{
        {"CheckWin", "With Windows", key::iniciarConWindows, "True"},
        {"CheckMini", "Minimized", key::iniciarMinimizado, "True"},
        {"OptReal", "Real", key::tirada, "real"},
        {"OptObj", "Objective", key::tirada, "objetiva"},
        {"OptionClassic", "Marseilles classic", key::tipocartas, "marsellaclass"},
        {"OptionFree", "Esoteric Tarot", key::tipocartas, "oldones"},
        {"OptionBeauty", "Marseilles beautiful", key::tipocartas, "marsellaone"},
        {"CheckCardDayMute", "Show Card of Day at midnight", key::muteCod, "muted"},
        {"OptionToolbar", "Toolbar", key::minimizar, "toolbar"},
        {"OptionSystray", "Systray", key::minimizar, "systray"},
        {"OptionSur", "South", key::hemisferio, "Sur"},
        {"OptionNorte", "North", key::hemisferio, "Norte"},
        {"OptionXP", "Classic style ToolTip ", key::estiloTooltips, "windows xp"},
        {"CheckNoSound", "Silent mode tooltip (only classic style)", key::modoSilencioso, "mudo"},
        {"OptionPersonal", "Personal ToolTip ", key::estiloTooltips, "personal"},
        {"CheckBgSound", "Enable sound when changing of module", key::backgroundSound, "SiBgSound"},
        {"CheckTooltips", "Deactivate Tooltips", key::desactivarTooltips, "ToolTips off"},
    };
    taskBar.where = platform::TaskBarPosition{0, 770, 1280, 800, platform::TaskBarPosition::bottomEdge};
    for (const auto& [name, caption, option, value] : rows) {
        EXPECT_EQ(control<QAbstractButton>(window, name).text().remove('&'), caption);
        click(window, name);
        EXPECT_EQ(options.option(option), value) << name;
    }
    EXPECT_FALSE(control<QWidget>(window, "OptionXP").isEnabled()) << "the tips are off now";
}

TEST_F(SecondaryWindowsTest, TheListsFollowTheKeyboardAndARefusedChoiceJumpsBack) {
    const FrmOptions& window = touch<FrmOptions>();
    auto& levels = control<QComboBox>(window, "ComboBio");
    EXPECT_EQ(levels.count(), 9);
    QTest::keyClick(&levels, Qt::Key_End);
    EXPECT_EQ(options.option(key::nivelAlertas), "Maximum (c. phase + critical + Crossings + actual s.)");
    taskBar.where = platform::TaskBarPosition{0, 0, 1280, 30, platform::TaskBarPosition::topEdge};
    click(window, "OptionPersonal");
    EXPECT_EQ(boxes.shown.size(), 1U);
    EXPECT_TRUE(control<QAbstractButton>(window, "OptionXP").isChecked());
}

TEST_F(SecondaryWindowsTest, TheOptionsAreNotShownBeforeTheyAreLoaded) {
    options.setOption(key::estiloTooltips, "personal");
    taskBar.where = platform::TaskBarPosition{0, 0, 1280, 30, platform::TaskBarPosition::topEdge};
    boxes.whileOpen = [this] {
        touch<FrmOptions>(); // by the menu of the tray, behind the box that refuses the personal tip
        EXPECT_FALSE(windows.loaded<FrmOptions>()->isVisible());
    };
    EXPECT_TRUE(touch<FrmOptions>().isVisible());
    EXPECT_EQ(boxes.shown.size(), 1U);
}

TEST_F(SecondaryWindowsTest, TheOptionsSayWhereThePanelShowsTheTip) {
    EXPECT_FALSE(shown(touch<FrmOptions>(), "LabelPanelTip"));
    windows.unload("FrmOptions");
    tray.arrive(desktop::TrayKind::item);
    EXPECT_TRUE(shown(touch<FrmOptions>(), "LabelPanelTip"));
    windows.unload("FrmOptions");
    tray.arrive(desktop::TrayKind::window);
    EXPECT_FALSE(shown(touch<FrmOptions>(), "LabelPanelTip"));
}

TEST_F(SecondaryWindowsTest, OnlyTheButtonOfTheOptionsGivesTheTrayTipFree) {
    state.trayBusy = true;
    QTest::keyClick(&touch<FrmOptions>(), Qt::Key_Escape);
    EXPECT_EQ(windows.loaded("FrmOptions"), nullptr);
    EXPECT_TRUE(state.trayBusy);
    click(touch<FrmOptions>(), "ARButtonAcep");
    EXPECT_EQ(windows.loaded("FrmOptions"), nullptr);
    EXPECT_FALSE(state.trayBusy);
}

TEST_F(SecondaryWindowsTest, EveryOptionHasAMnemonicOfItsOwn) {
    const FrmOptions& window = touch<FrmOptions>();
    QStringList letters = mnemonicsOf(window);
    const auto labels = window.findChildren<QLabel*>();
    const auto named = std::ranges::count_if(labels, [](const QLabel* label) { return label->buddy() != nullptr; });
    EXPECT_EQ(letters.size(), window.findChildren<QAbstractButton*>().size() + named);
    EXPECT_EQ(letters.removeDuplicates(), 0);
}

TEST_F(SecondaryWindowsTest, TheAboutBoxSpeaksFromTheSuppliedFile) {
    files.at("\\velmoriax.ini") = test::bytesOf(VELMORIAX_DATA_DIR "/velmoriax.ini");
    QApplication::setApplicationDisplayName("Velmoriax");
    QApplication::setApplicationVersion("1.20.3");
    state.trayBusy = true;

    frmAbout& window = touch<frmAbout>();
    EXPECT_EQ(window.windowTitle(), "About Velmoriax");
    EXPECT_EQ(textOf(window, "LblTitle"), "Velmoriax by ostrabe");
    EXPECT_EQ(textOf(window, "lblVersion"), "Version: 1.20.3");
    const std::string paragraph = textOf(window, "lblDescription");
    EXPECT_TRUE(paragraph.starts_with("In the ") && paragraph.ends_with(" Enjoy!")) << paragraph;

    click(window, "CommandInfo");
    click(window, "LblUrl");
    QTest::keyClick(&control<widgets::LinkLabel>(window, "LblMailto"), Qt::Key_Return);
    EXPECT_EQ(opener.opened,
              (std::vector<std::string>{files.directory + "/Velmoriax.html", "https://velmoriax.example/",
                                        "mailto:hello@velmoriax.example"}));
    window.close();
    EXPECT_FALSE(state.trayBusy) << "by the close box too";
}

TEST_F(SecondaryWindowsTest, AnAddressOfTheUsersOwnIsTaken) {
    files.at("\\velmoriax.ini") = "[about]\r\nWeb=https://mirror.example/v\r\n";
    click(touch<frmAbout>(), "LblUrl");
    EXPECT_EQ(opener.opened, std::vector<std::string>{"https://mirror.example/v"});
}

TEST_F(SecondaryWindowsTest, ThePointerUnderlinesALinkAndTheFreeSurfaceTakesItAway) {
    frmAbout& window = touch<frmAbout>();
    auto& web = control<widgets::LinkLabel>(window, "LblUrl");
    auto& mail = control<widgets::LinkLabel>(window, "LblMailto");
    QTest::mouseMove(&web, QPoint(5, 5));
    QTest::mouseMove(&mail, QPoint(5, 5));
    EXPECT_TRUE(web.font().underline()) << "only the free surface takes it away";
    EXPECT_TRUE(mail.font().underline());
    QTest::mouseMove(&window, QPoint(4, 4));
    EXPECT_FALSE(web.font().underline() || mail.font().underline());
}

/// Whatever the test wants to happen inside a slide, the events do.
struct NotifTest : test::WindowFixture {
    SlidingNotification sliding{context};

    NotifTest() {
        addWindows(windows, context);
        context.notification = &sliding;
    }
    Notif* window() const { return windows.loaded<Notif>(); }
    static QRect screen() { return QGuiApplication::primaryScreen()->geometry(); }
    static int bottom() { return screen().bottom() + 1; }
    /// Lets something happen once, in the middle of the next slide.
    void inTheMiddle(std::function<void()> what) {
        events.runs = 0;
        events.whatRuns = [this, what] {
            if (events.runs == 60) what();
        };
    }
};

TEST_F(NotifTest, SlidesUpByItsLengthOnePixelAStepWithEventsBetween) {
    sliding.slideUp(std::string(265, 'a'));
    ASSERT_TRUE(window());
    EXPECT_TRUE(sliding.isOpen() && window()->isVisible());
    EXPECT_EQ(window()->geometry(),
              QRect(screen().width() - window()->width() - 33, bottom() - 178 - 29, window()->width(), 178));
    EXPECT_EQ(events.runs, 178 + 29);
}

TEST_F(NotifTest, OneThatStandsSlidesDownInEitherDirectionAndStaysLoaded) {
    sliding.slideUp(QString(149, u'á').toStdString());
    sliding.slideUp("second");
    EXPECT_FALSE(sliding.isOpen());
    ASSERT_TRUE(window());
    EXPECT_EQ(window()->y(), bottom() + 120) << "the height of the first: letters count, and not bytes";
    sliding.slideUp(std::string(266, 'a'));
    EXPECT_TRUE(sliding.isOpen()) << "a window that waits below the screen comes up again";
    EXPECT_EQ(window()->y(), bottom() - 243 - 29);
    sliding.slideDown();
    EXPECT_FALSE(sliding.isOpen());
    EXPECT_TRUE(window());
}

TEST_F(NotifTest, CloseMarkAndMinimisedModuleTakeItAway) {
    sliding.slideUp("text");
    press(*window(), "Image1");
    EXPECT_FALSE(window() || sliding.isOpen());
    closeNotification(context);
    EXPECT_FALSE(window()) << "nothing is shown, nothing is touched";
    sliding.slideUp("text");
    closeNotification(context);
    EXPECT_FALSE(window() || sliding.isOpen());
}

TEST_F(NotifTest, SlideInsideASlideEndsWhereTheLaterTextWants) {
    inTheMiddle([this] { sliding.slideUp(std::string(300, 'b')); });
    sliding.slideUp("short");
    EXPECT_TRUE(sliding.isOpen());
    EXPECT_EQ(window()->height(), 243);
    EXPECT_EQ(window()->y(), bottom() - 243 - 29);

    inTheMiddle([this] { sliding.slideUp("up again"); });
    sliding.slideDown();
    EXPECT_EQ(window()->y(), bottom() + window()->height()) << "the outer slide has the last word";
}

TEST_F(NotifTest, TakenAwayOrEndedInTheMiddleTheSlideStopsAndTheWindowGoes) {
    QPointer<Notif> first;
    inTheMiddle([&] {
        first = window();
        windows.unload("Notif");
        EXPECT_TRUE(first) << "destroyed while it slides";
    });
    sliding.slideUp("text");
    EXPECT_FALSE(window());
    EXPECT_FALSE(sliding.isOpen());
    EXPECT_LT(events.runs, 70);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !first; })) << "and destroyed when nothing slides any more";

    inTheMiddle([&] {
        state.closingAll = true;
        windows.unloadAll();
    });
    sliding.slideUp("text");
    EXPECT_FALSE(window());
    EXPECT_LT(events.runs, 70);
}

TEST_F(NotifTest, LongestAlertFitsWithoutScrolling) {
    const std::string text =
        "Your physical cycle begins an ascending phase!\r\nYour intuitive cycle begins a descending phase!\r\n"
        "Your intuitive cycle enter in a critical period and advance toward a passive phase, the intuition won't be of "
        "great help!\r\nCrossing downward physical cycle to intuitive, intuition will be an allied while strength "
        "decreases!\r\n---------------------------------------------\r\nPhysical: -97.53 % (falling)\r\nEmotional: "
        "100.00 % (rising)\r\nIntellectual: -100.00 % (falling)\r\nIntuitive: -100.00 % (falling)";
    sliding.slideUp(text);
    const auto& words = control<QLabel>(*window(), "mTexto");
    EXPECT_LE(words.heightForWidth(words.width()), words.parentWidget()->height());
    EXPECT_FALSE(window()->isActiveWindow());
}

} // namespace
} // namespace velmoriax::shell
