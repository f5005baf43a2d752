// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/windows1252.h"
#include "shell/windows/frm_timer.h"
#include "sky/windows/frm_moon_phase.h"
#include "sky/zodiac_tables.h"
#include "support/program_fixture.h"
#include "tarot/windows/frm_calendar.h"
#include "tarot/windows/frm_carta_dia.h"

#include <QCalendarWidget>
#include <QLabel>
#include <QMouseEvent>
#include <QWindow>

#include <algorithm>

namespace velmoriax::tarot {
namespace {

/// A marked pixel that lies inside the rim which a half turn leaves alone.
constexpr QPoint moonMark{2, 3};

/// The hub, the two windows of a day and the Moon, with pictures that tell their number in blue, on November 15, 2026.
struct DayFixture : test::ProgramFixture {
    DayFixture() {
        for (int card = 1; card <= majorCards; ++card)
            files.at("\\imagenes\\" + majorPictureFile(card)) = test::pictureBytes(numbered(card));
        for (int moon = 0; moon <= 30; ++moon)
            files.at("\\lunagif\\moon" + std::to_string(moon) + ".gif") =
                test::pictureBytes(numbered(100 + moon), moonMark);
        for (std::size_t sign = 0; sign < 12; ++sign) {
            const std::string name(sky::signFileNames[sign]);
            files.at("\\signos\\" + name + "_sm.gif") = test::pictureBytes(numbered(int(sign)));
            files.at("\\sigtxt\\" + base::lowerWindows1252(name) + ".txt") = "About " + name + "\r\n";
        }
        files.at("\\fechas-db\\escorpio.txt") = "10/23/2026 7:38:00-11/22/2026 7:23:00\r\n";
        files.at("\\fechas-db\\sagitario.txt") = "11/22/2026 7:23:00-12/21/2026 20:50:00\r\n";
        files.at("\\bio.dat") = "15,3,1980\r\n";
        files.at("\\horabio.dat") = "7,5\r\n";
    }

    static QRgb numbered(int number) { return 0xff000000U + unsigned(number); }
    void option(const char* key, const char* value) { options.setOption(key, value); }

    /// Starts the hub and gives the first module.
    shell::ModuleWindow& start() {
        hub.load();
        return loadedModule();
    }

    /// Lets the clock go on by seconds, with the ticks that they bring to the hub and to the card of the day.
    void run(base::CivilDate date, base::CivilTime from, int seconds) {
        for (int i = 0; i < seconds; ++i) {
            clock.moment = base::dateValueOf(date, from) + i / 86400.0;
            fire(hub, "TimeUp");
            auto& module = loadedModule();
            if (module.module().windowName == "FrmCartaDia") fire(module, "krono");
        }
    }

    static void move(QWidget& receiver, QPoint to, int times = 1) {
        for (int i = 0; i < times; ++i) {
            QMouseEvent event(QEvent::MouseMove, to, receiver.mapToGlobal(to), Qt::NoButton, Qt::NoButton,
                              Qt::NoModifier);
            QCoreApplication::sendEvent(&receiver, &event);
        }
    }
    static bool isAway(const QWidget& window) { return !window.isVisible() || window.isMinimized(); }
    sky::FrmMoonPhase* moonDetails() { return windows.loaded<sky::FrmMoonPhase>(); }
};

using Hub = DayFixture;

TEST_F(Hub, StartsWithAnAlertAndRunsTheNextAfterHalfAnHour) {
    option(shell::key::nivelAlertas.data(), "Only actual situation");
    start();
    EXPECT_TRUE(files.has("\\biofinal.dat")) << "files of a first start come into being";
    ASSERT_TRUE(QTest::qWaitFor([&] { return !notification.texts.empty(); })) << "when the first window stands";
    EXPECT_TRUE(notification.texts[0].starts_with("Physical: "));
    EXPECT_FALSE(modules.biorhythms.alerts.startupAlert);

    options.holders.alertLevel = "maxi";
    modules.biorhythms.alerts.manualAlert = true;
    modules.biorhythms.alerts.lastAlertKey = "what the last run told";
    for (int tick = 0; tick < 60; ++tick) fire(hub, "TimerBio");
    EXPECT_EQ(notification.texts.size(), 2U);
    EXPECT_FALSE(modules.biorhythms.alerts.manualAlert);
}

TEST_F(Hub, TakesTheNotificationAwayAfterItsTimeAndReadsNoFileForTheClock) {
    start();
    notification.open = state.notifOpen = true;
    files.contents.clear();
    run({2026, 11, 15}, {12, 0, 1}, 29);
    EXPECT_TRUE(notification.isOpen());
    run({2026, 11, 15}, {12, 0, 30}, 1);
    EXPECT_FALSE(notification.isOpen());
}

TEST_F(Hub, TheTipIsWorkedOutWithOrWithoutAWindow) {
    option(shell::key::moduloInicial.data(), "Another Day...");
    start();
    const auto& lines = modules.subsystems.tipLines;
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(lines[0]->tipLine(clock.now()), "Card of Day: XVIII. The Moon");
    EXPECT_EQ(lines[1]->tipLine(clock.now()), "Zodiac Sign: Scorpio");
    EXPECT_TRUE(lines[2]->tipLine(clock.now()).starts_with("Biorhythms (avg.): "));
    EXPECT_EQ(lines[3]->tipLine(clock.now()), "Moon Phase(illum.): 31.47 % (>)");
}

TEST_F(Hub, LivesWithoutANotificationAndWithAClockThatIsSetBack) {
    modules.setNotification(nullptr);
    start();
    state.notifOpen = true;
    run({2026, 11, 15}, {12, 0, 0}, 40);
    run({2026, 11, 14}, {3, 0, 0}, 5);
    for (int tick = 0; tick < 61; ++tick) fire(hub, "TimerBio");
    EXPECT_EQ(modules.agent.LblTime, "3:00:04");
}

struct CardOfDay : DayFixture {
    long trumpets() const { return std::ranges::count(sounds.played, "Trumpet.wav"); }
    static bool staysOnTop(const QWidget& window) {
        return window.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint);
    }
};

TEST_F(CardOfDay, ShowsWhatTheMomentHolds) {
    auto& window = start();
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(textOf(window, "LblDate"), "Sunday, November 15, 2026 (The Sun)");
    EXPECT_EQ(tipOf(window, "ImgCartadia"), "XVIII. The Moon");
    EXPECT_EQ(onShow(window, "ImgCartadia"), numbered(18));
    EXPECT_EQ(onShow(window, "ImgLuna", moonMark), numbered(106)) << "twelve degrees a picture, 75.7 degrees";
    EXPECT_EQ(textOf(window, "LabelZod"), "Scorpio");
    EXPECT_EQ(tipOf(window, "ImageZod"), "Scorpio: October 23/November 22");
    EXPECT_FALSE(shown(window, "ImageAlert"));
    EXPECT_EQ(textOf(window, "LabelBioInfo"), "Biorhythms: b.3/15/1980 7:05 (average)");
    EXPECT_NE(shown(window, "Imageasc"), shown(window, "Imagedesc"));
    const QString spoken = control<QWidget>(window, "PicMediaBio").accessibleDescription();
    EXPECT_TRUE(spoken.toStdString().starts_with(textOf(window, "LabelBioMedia")));
}

TEST_F(CardOfDay, TheSouthSeesTheMoonTurnedAndADayOfChangeIsTold) {
    option(shell::key::hemisferio.data(), "Sur");
    clock.set({2026, 11, 22}, {12, 0, 0});
    zone.info = {platform::ZoneInfo::State::standard, -60, 0};
    auto& window = start();
    EXPECT_NE(onShow(window, "ImgLuna", moonMark), onShow(window, "ImgLuna", {5, 4}));
    EXPECT_GT(onShow(window, "ImgLuna", {5, 4}), numbered(100)) << "half a turn from 2, 3 on a picture of 8 by 8";
    press(window, "ImageAlert");
    EXPECT_EQ(boxes.shown.at(0).text, "Change of sign along the day 11/22/2026 at 8:23:00 (local time).\n");
}

TEST_F(CardOfDay, TheNewDayComesUpAMomentAfterMidnightAndGoes) {
    clock.set({2026, 11, 14}, {23, 58, 0});
    auto& window = start();
    run({2026, 11, 14}, {23, 58, 0}, 121);
    EXPECT_EQ(tipOf(window, "ImgCartadia"), "XVII. The Star") << "the old card stands at 0:00:00";
    EXPECT_FALSE(staysOnTop(window));
    run({2026, 11, 15}, {0, 0, 1}, 29);
    EXPECT_EQ(tipOf(window, "ImgCartadia"), "XVIII. The Moon");
    EXPECT_TRUE(!isAway(window) && staysOnTop(window));
    run({2026, 11, 15}, {0, 0, 30}, 31);
    EXPECT_TRUE(isAway(window));
    EXPECT_FALSE(state.refreshingView);
    EXPECT_TRUE(staysOnTop(window)) << "nothing lowers it again";
    EXPECT_EQ(textOf(window, "LblGetUptime"), "0:02:59");
    EXPECT_EQ(trumpets(), 1);
}

TEST_F(CardOfDay, AMutedMidnightAndAnotherModuleBringNoCard) {
    option(shell::key::muteCod.data(), "muted");
    clock.set({2026, 11, 14}, {23, 58, 0});
    auto& window = start();
    run({2026, 11, 14}, {23, 58, 0}, 180);
    EXPECT_FALSE(isAway(window)) << "a window that the user has open stays open";

    option(shell::key::muteCod.data(), "nomuted");
    switcher.handOver("FrmCalendar");
    run({2026, 11, 15}, {23, 58, 0}, 180);
    EXPECT_EQ(loadedModule().module().windowName, "FrmCalendar");
    EXPECT_EQ(trumpets(), 0);
}

TEST_F(CardOfDay, AModuleLeftAtMidnightIsNoRefreshLater) {
    clock.set({2026, 11, 15}, {0, 0, 0});
    auto& window = start();
    run({2026, 11, 15}, {0, 0, 1}, 5);
    switcher.handOver("FrmCalendar");
    EXPECT_FALSE(state.refreshingView);
    option(shell::key::iniciarMinimizado.data(), "True");
    switcher.handOver("FrmCartaDia");
    run({2026, 11, 15}, {0, 0, 20}, 20);
    EXPECT_FALSE(isAway(loadedModule()));
}

TEST_F(CardOfDay, GaugeMoonAndSignFollowTheMinutesAndTheCardDoesNot) {
    auto& window = start();
    const std::string average = textOf(window, "LabelBioMedia");
    clock.set({2026, 11, 25}, {12, 0, 0});
    for (int minute = 0; minute < 30; ++minute) fire(window, "TimerPlus");
    EXPECT_NE(textOf(window, "LabelBioMedia"), average);
    EXPECT_EQ(textOf(window, "LabelZod"), "Scorpio");
    for (int minute = 30; minute < 60; ++minute) fire(window, "TimerPlus");
    EXPECT_NE(onShow(window, "ImgLuna", moonMark), numbered(106));
    EXPECT_EQ(textOf(window, "LabelZod"), "Sagittarius");
    EXPECT_EQ(tipOf(window, "ImgCartadia"), "XVIII. The Moon");

    press(window, "PictActualize");
    EXPECT_EQ(tipOf(window, "ImgCartadia"), "XIX. The Sun");
    EXPECT_FALSE(state.refreshingView || state.viewLoading);
}

TEST_F(CardOfDay, TheFifthMoveTellsAboutTheSignAndTheMouseIsAlwaysLetGo) {
    auto& window = start();
    auto& sign = control<widgets::PictureBox>(window, "ImageZod");
    auto& text = control<QLabel>(window, "TextZod");
    for (const auto& goAway : {+[](QWidget& w) {
                                   move(control<QWidget>(w, "ImageZod"), {-1, 5});
                               },
                               +[](QWidget& w) { w.hide(); }, +[](QWidget& w) { w.close(); },
                               +[](QWidget& w) {
                                   QEvent blocked(QEvent::WindowBlocked);
                                   QCoreApplication::sendEvent(&w, &blocked);
                               }}) {
        window.showNormalState();
        move(sign, {5, 5}, 4);
        EXPECT_FALSE(text.isVisible());
        EXPECT_EQ(QWidget::mouseGrabber(), &sign);
        move(sign, {6, 5});
        EXPECT_TRUE(text.isVisible());
        EXPECT_FALSE(text.geometry().intersects({sign.mapTo(&window, QPoint()), sign.size()}));
        goAway(window);
        EXPECT_EQ(QWidget::mouseGrabber(), nullptr);
        EXPECT_FALSE(text.isVisible());
    }
    QTest::keyPress(&sign, Qt::Key_Space);
    EXPECT_FALSE(text.isHidden());
    EXPECT_EQ(text.text(), "About Escorpio");
    QTest::keyRelease(&sign, Qt::Key_Space);
    EXPECT_TRUE(text.isHidden());
}

TEST_F(CardOfDay, TheMoonTellsItsPhasesWhileTheMouseRestsOnIt) {
    auto& window = start();
    auto& moon = control<widgets::PictureBox>(window, "ImgLuna");
    move(moon, {5, 5}, 5);
    ASSERT_NE(moonDetails(), nullptr);
    EXPECT_TRUE(moonDetails()->isVisible());
    EXPECT_TRUE(textOf(*moonDetails(), "LabelInfo").starts_with("Next Full Moon: 11/24/2026 "));
    Q_EMIT moon.clicked();
    EXPECT_TRUE(textOf(*moonDetails(), "LabelInfo").starts_with("Previous Full Moon: 10/26/2026 "));
    clock.set({2026, 11, 24}, {15, 0, 0});
    fire(*moonDetails(), "Timer1");
    EXPECT_EQ(textOf(*moonDetails(), "LabelResum"), "Full Moon") << "it runs live";
    move(moon, {5, -1});
    EXPECT_EQ(moonDetails(), nullptr);

    QTest::keyClick(&moon, Qt::Key_Return);
    ASSERT_NE(moonDetails(), nullptr) << "the keyboard finds it as well";
    move(*moonDetails(), control<QLabel>(*moonDetails(), "LabelInfo").geometry().center());
    EXPECT_NE(moonDetails(), nullptr) << "labels do not count";
    move(*moonDetails(), {2, 2});
    EXPECT_EQ(moonDetails(), nullptr);

    move(moon, {5, 5}, 5);
    window.hideToTray();
    EXPECT_EQ(moonDetails(), nullptr);
}

TEST_F(CardOfDay, TheMouseMayLeaveTheMoonWhileItsPhasesAreSearched) {
    auto& window = start();
    auto& moon = control<widgets::PictureBox>(window, "ImgLuna");
    events.whatRuns = [&] {
        if (!moonDetails()) return;
        move(moon, {5, -1});
        QCoreApplication::processEvents();
    };
    move(moon, {5, 5}, 5);
    EXPECT_EQ(moonDetails(), nullptr);
    for (const QWidget* top : QApplication::topLevelWidgets())
        EXPECT_FALSE(top->inherits("velmoriax::sky::FrmMoonPhase") && top->isVisible());
}

TEST_F(CardOfDay, WelcomesAtEachLoadWhileNoBirthDateIsSet) {
    files.contents.erase(files.contents.find(files.directory + "/bio.dat"));
    auto& window = start();
    const auto heard = [&](std::size_t times) {
        return QTest::qWaitFor([&] { return sounds.played == std::vector<std::string>(times, "Url.wav"); });
    };
    EXPECT_TRUE(heard(1));
    press(window, "PictActualize");
    EXPECT_TRUE(heard(2));
    const std::string welcome = "Welcome to Velmoriax, change the birth date to calculate biorhythms.";
    EXPECT_EQ(notification.texts, std::vector{welcome}) << "it stands, and stays";
    notification.open = false;
    press(window, "PictActualize");
    EXPECT_TRUE(heard(3));
    EXPECT_EQ(notification.texts, (std::vector{welcome, welcome}));
}

struct AnotherDay : DayFixture {
    shell::ModuleWindow& startWithCalendar() {
        option(shell::key::moduloInicial.data(), "Another Day...");
        return start();
    }
    void pick(QDate date) {
        calendar.setSelectedDate(date);
        QTest::keyClick(calendar.findChild<QWidget*>("qt_calendar_calendarview"), Qt::Key_Return);
    }

    shell::ModuleWindow& window = startWithCalendar();
    QCalendarWidget& calendar = control<QCalendarWidget>(window, "Calendar1");
};

TEST_F(AnotherDay, NothingIsWorkedOutBeforeADayIsPicked) {
    EXPECT_TRUE(calendar.minimumDate() == QDate(100, 1, 1) && calendar.maximumDate() == QDate(9999, 12, 31));
    calendar.showNextMonth();
    QTest::keyClick(calendar.findChild<QWidget*>("qt_calendar_calendarview"), Qt::Key_Right);
    EXPECT_EQ(textOf(window, "TxtFecha") + textOf(window, "LabelZod"), "");
    EXPECT_EQ(onShow(window, "Imgfechasel"), test::ownBack()) << "the card lies face down";
    EXPECT_FALSE(shown(window, "LabelFase"));
    Q_EMIT control<widgets::PictureBox>(window, "Imgfechasel").clicked();
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(AnotherDay, APickedDayGivesCardSignAndMoon) {
    pick({2026, 11, 15});
    EXPECT_EQ(textOf(window, "TxtFecha"), "Monday , November 15 of 2026");
    EXPECT_EQ(tipOf(window, "ImageZod"), "October 23/November 22");
    EXPECT_EQ(tipOf(window, "ImgLuna"), "Waxing Crescent: 31.47% of Full");
    EXPECT_TRUE(shown(window, "LabelFase"));
    EXPECT_EQ(onShow(window, "ImgLuna", moonMark), numbered(106));

    options.holders.hemisferio = "Sur";
    Q_EMIT calendar.clicked({2000, 2, 29});
    EXPECT_EQ(onShow(window, "Imgfechasel"), numbered(15));
    EXPECT_EQ(onShow(window, "ImgLuna", moonMark), 0xff000000) << "turned away";
    modules.cards.cards.currentCard = 3;
    Q_EMIT control<widgets::PictureBox>(window, "Imgfechasel").clicked();
    EXPECT_EQ(boxes.shown.at(0).title, "XV. The Devil") << "the card of the day, whatever was drawn since";
}

TEST_F(AnotherDay, AChangeOfSignIsToldUntilTheNextPick) {
    zone.info = {platform::ZoneInfo::State::standard, 480, 0};
    pick({2026, 11, 22});
    press(window, "ImageAlert");
    EXPECT_EQ(boxes.shown.at(0).text, "Change of sign along the day 11/21/2026 at 23:23:00 (local time).\n");
    pick({2026, 11, 23});
    EXPECT_FALSE(shown(window, "ImageAlert"));
}

TEST_F(AnotherDay, TheSignIsToldAboutWhileItIsPressed) {
    pick({2026, 11, 23});
    auto& sign = control<widgets::PictureBox>(window, "ImageZod");
    auto& text = control<QLabel>(window, "TextZod");
    QTest::mousePress(&sign, Qt::LeftButton);
    EXPECT_TRUE(text.isVisible());
    EXPECT_EQ(text.text(), "About Sagitario");
    QTest::mouseRelease(&sign, Qt::LeftButton, {}, {-50, -50});
    EXPECT_FALSE(text.isVisible()) << "let go elsewhere";
    QTest::keyPress(&sign, Qt::Key_Space);
    EXPECT_TRUE(text.isVisible());
    QFocusEvent lost(QEvent::FocusOut);
    QCoreApplication::sendEvent(&sign, &lost);
    EXPECT_FALSE(text.isVisible()) << "the key's release goes to another window";
}

} // namespace
} // namespace velmoriax::tarot
