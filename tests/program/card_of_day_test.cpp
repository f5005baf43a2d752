// SPDX-License-Identifier: GPL-3.0-or-later
#include "day_fixture.h"
#include "sky/windows/frm_moon_phase.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPointer>
#include <QWindow>

#include <algorithm>

namespace velmoriax::tarot {
namespace {

struct CardOfDay : DayFixture {
    /// Moves the pointer of the desktop, ending at that place.
    static void movePointer(QWidget& receiver, QPoint to, int times = 1) {
        for (int i = times - 1; i >= 0; --i) QTest::mouseMove(&receiver, to + QPoint(i % 2, 0));
    }
    /// Moves over a widget without the desktop, which here activates the moon details when they are shown.
    static void move(QWidget& receiver, QPoint to, int times = 1) {
        for (int i = 0; i < times; ++i) {
            QMouseEvent event(QEvent::MouseMove, to, receiver.mapToGlobal(to), Qt::NoButton, Qt::NoButton,
                              Qt::NoModifier);
            QCoreApplication::sendEvent(&receiver, &event);
        }
    }
    static QPoint middle(const widgets::PictureBox& box) { return box.pictureRect().center(); }
    static bool isAway(const QWidget& window) { return !window.isVisible() || window.isMinimized(); }
    sky::FrmMoonPhase* moonDetails() { return windows.loaded<sky::FrmMoonPhase>(); }

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
    const QString spoken = control<QWidget>(window, "PicMediaBio").accessibleName();
    EXPECT_TRUE(spoken.toStdString().ends_with(": " + textOf(window, "LabelBioMedia")));
    EXPECT_EQ(control<QWidget>(window, "ImgLuna").accessibleName(), "Moon Waxing Crescent: 31% from Full");
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
    EXPECT_EQ(tipOf(window, "ImgCartadia"), "XVII. The Star") << "the old card is shown at 0:00:00";
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

TEST_F(CardOfDay, TheFifthMoveTellsAboutTheSignAndNoMoveHoldsTheMouse) {
    auto& window = start();
    auto& sign = control<widgets::PictureBox>(window, "ImageZod");
    auto& text = control<QLabel>(window, "TextZod");
    ASSERT_GT(sign.pictureRect().left(), 8) << "the box is wider than its picture";
    for (const auto& goAway :
         {+[](QWidget& w) {
              movePointer(control<QWidget>(w, "ImageZod"), {2, 30});
          },
          +[](QWidget& w) {
              movePointer(control<QWidget>(w, "LabelFase"), {2, 2});
          },
          +[](QWidget&) { QCursor::setPos(5000, 5000); }, +[](QWidget& w) { w.hide(); }, +[](QWidget& w) { w.close(); },
          +[](QWidget& w) {
              QEvent blocked(QEvent::WindowBlocked);
              QCoreApplication::sendEvent(&w, &blocked);
          }}) {
        window.showNormalState();
        movePointer(sign, {2, 30}, 7);
        EXPECT_FALSE(text.isVisible()) << "beside the picture";
        movePointer(sign, middle(sign), 4);
        EXPECT_FALSE(text.isVisible());
        EXPECT_EQ(QWidget::mouseGrabber(), nullptr) << "a screen lock can take it at any moment";
        movePointer(sign, middle(sign) + QPoint(3, 0));
        EXPECT_TRUE(text.isVisible());
        EXPECT_FALSE(text.geometry().intersects({sign.mapTo(&window, QPoint()), sign.size()}));
        goAway(window);
        QCoreApplication::processEvents();
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
    move(moon, middle(moon), 5);
    ASSERT_NE(moonDetails(), nullptr);
    EXPECT_TRUE(moonDetails()->isVisible());
    EXPECT_TRUE(textOf(*moonDetails(), "LabelInfo").starts_with("Next Full Moon: 11/24/2026 "));
    QTest::mouseClick(&moon, Qt::LeftButton, {}, middle(moon));
    EXPECT_TRUE(textOf(*moonDetails(), "LabelInfo").starts_with("Previous Full Moon: 10/26/2026 "));
    clock.set({2026, 11, 24}, {15, 0, 0});
    fire(*moonDetails(), "Timer1");
    EXPECT_EQ(textOf(*moonDetails(), "LabelResum"), "Full Moon") << "it runs live";
    move(moon, moon.pictureRect().topLeft() + QPoint(1, 1));
    EXPECT_EQ(moonDetails(), nullptr) << "outside the disk";

    QTest::keyClick(&moon, Qt::Key_Return);
    ASSERT_NE(moonDetails(), nullptr) << "the keyboard finds it as well";
    move(*moonDetails(), control<QLabel>(*moonDetails(), "LabelInfo").geometry().center());
    EXPECT_NE(moonDetails(), nullptr) << "labels do not count";
    move(*moonDetails(), {2, 2});
    EXPECT_EQ(moonDetails(), nullptr);
}

TEST_F(CardOfDay, AWindowThatGoesWhileTheMouseIsOnTheMoonLeavesNothing) {
    QPointer<QWidget> window = &start();
    auto& moon = control<widgets::PictureBox>(*window, "ImgLuna");
    move(moon, middle(moon), 5);
    loadedModule().hideToTray();
    EXPECT_EQ(moonDetails(), nullptr);

    loadedModule().showNormalState();
    move(moon, middle(moon), 5);
    EXPECT_NE(moonDetails(), nullptr);
    windows.unload("FrmCartaDia");
    EXPECT_EQ(moonDetails(), nullptr);
    move(moon, middle(moon), 7);
    EXPECT_EQ(moonDetails(), nullptr) << "moves that were still on their way";
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.isNull(); }));
    EXPECT_EQ(QWidget::mouseGrabber(), nullptr);
}

TEST_F(CardOfDay, TheMouseMayLeaveTheMoonWhileItsPhasesAreSearched) {
    auto& window = start();
    auto& moon = control<widgets::PictureBox>(window, "ImgLuna");
    events.whatRuns = [&] {
        if (moonDetails()) move(moon, {1, 1});
    };
    move(moon, middle(moon), 5);
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
    EXPECT_EQ(notification.texts, std::vector{welcome}) << "it is shown, and stays";
    notification.open = false;
    press(window, "PictActualize");
    EXPECT_TRUE(heard(3));
    EXPECT_EQ(notification.texts, (std::vector{welcome, welcome}));
}

} // namespace
} // namespace velmoriax::tarot
