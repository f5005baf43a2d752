// SPDX-License-Identifier: GPL-3.0-or-later
#include "day_fixture.h"

#include <QWindow>

#include <algorithm>

namespace velmoriax::tarot {
namespace {

struct CardOfDay : test::DayFixture {
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
    EXPECT_EQ(onShow(window, "ImgLuna", test::moonMark), numbered(106)) << "twelve degrees a picture, 75.7 degrees";
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
    EXPECT_NE(onShow(window, "ImgLuna", test::moonMark), onShow(window, "ImgLuna", {5, 4}));
    EXPECT_GT(onShow(window, "ImgLuna", {5, 4}), numbered(100)) << "half a turn from 2, 3 on a picture of 8 by 8";
    press(window, "ImageAlert");
    EXPECT_EQ(boxes.shown,
              (test::Shown{{platform::BoxIcon::information,
                            "Change of sign along the day 11/22/2026 at 8:23:00 (local time).\n", "Info"}}));
}

TEST_F(CardOfDay, TheNewDayComesUpAMomentAfterMidnightAndGoes) {
    clock.set({2026, 11, 14}, {23, 58, 0});
    auto& window = start();
    run({2026, 11, 14}, {23, 58, 0}, 121);
    EXPECT_EQ(textOf(window, "LblGetTime"), "0:00:00");
    EXPECT_EQ(tipOf(window, "ImgCartadia"), "XVII. The Star") << "the old card stands";
    EXPECT_FALSE(staysOnTop(window));
    run({2026, 11, 15}, {0, 0, 1}, 1);
    EXPECT_EQ(tipOf(window, "ImgCartadia"), "XVIII. The Moon");
    EXPECT_EQ(textOf(window, "LblGetUptime"), "0:02:00");
    EXPECT_EQ(trumpets(), 1);
    EXPECT_TRUE(window.isVisible() && staysOnTop(window));
    run({2026, 11, 15}, {0, 0, 2}, 28);
    EXPECT_FALSE(isAway(window));
    run({2026, 11, 15}, {0, 0, 30}, 31);
    EXPECT_TRUE(isAway(window));
    EXPECT_FALSE(record.shell.refreshingView);
    EXPECT_TRUE(staysOnTop(window)) << "nothing lowers it again";
    EXPECT_EQ(trumpets(), 1);
}

TEST_F(CardOfDay, AMutedMidnightAndAnotherModuleBringNoCard) {
    option(shell::key::muteCod.data(), "muted");
    clock.set({2026, 11, 14}, {23, 58, 0});
    auto& window = start();
    run({2026, 11, 14}, {23, 58, 0}, 180);
    EXPECT_EQ(tipOf(window, "ImgCartadia"), "XVII. The Star");
    EXPECT_FALSE(isAway(window)) << "a window that the user has open stays open";

    option(shell::key::muteCod.data(), "nomuted");
    window.handOverTo(shell::Module::anotherDay);
    run({2026, 11, 15}, {23, 58, 0}, 180);
    EXPECT_EQ(windows.loadedModules().size(), 1U);
    EXPECT_EQ(windows.loadedModule()->module(), shell::Module::anotherDay);
    EXPECT_EQ(trumpets(), 0);
}

TEST_F(CardOfDay, AModuleLeftAtMidnightIsNoRefreshLater) {
    clock.set({2026, 11, 15}, {0, 0, 0});
    auto& window = start();
    run({2026, 11, 15}, {0, 0, 1}, 5);
    window.handOverTo(shell::Module::anotherDay);
    EXPECT_FALSE(record.shell.refreshingView);
    option(shell::key::iniciarMinimizado.data(), "True");
    windows.loadedModule()->handOverTo(shell::Module::cardOfDay);
    run({2026, 11, 15}, {0, 0, 20}, 20);
    EXPECT_FALSE(isAway(*windows.loadedModule()));
}

TEST_F(CardOfDay, GaugeMoonAndSignFollowTheMinutesAndTheCardDoesNot) {
    auto& window = start();
    const std::string average = textOf(window, "LabelBioMedia");
    const QRgb moon = onShow(window, "ImgLuna", test::moonMark);
    clock.set({2026, 11, 25}, {12, 0, 0});
    for (int minute = 0; minute < 30; ++minute) fire(window, "TimerPlus");
    EXPECT_NE(textOf(window, "LabelBioMedia"), average);
    EXPECT_EQ(onShow(window, "ImgLuna", test::moonMark), moon);
    EXPECT_EQ(textOf(window, "LabelZod"), "Scorpio");
    for (int minute = 30; minute < 60; ++minute) fire(window, "TimerPlus");
    EXPECT_NE(onShow(window, "ImgLuna", test::moonMark), moon);
    EXPECT_EQ(textOf(window, "LabelZod"), "Sagittarius");
    EXPECT_EQ(tipOf(window, "ImgCartadia"), "XVIII. The Moon");

    press(window, "PictActualize");
    EXPECT_EQ(tipOf(window, "ImgCartadia"), "XIX. The Sun");
    EXPECT_FALSE(record.shell.refreshingView || record.shell.viewLoading);
}

TEST_F(CardOfDay, TheFifthMoveTellsAboutTheSignAndTheMouseIsAlwaysLetGo) {
    auto& window = start();
    auto& sign = control<shell::PictureBox>(window, "ImageZod");
    auto& text = control<QLabel>(window, "TextZod");
    move(sign, {5, 5}, 4);
    EXPECT_FALSE(text.isVisible());
    EXPECT_EQ(QWidget::mouseGrabber(), &sign);
    move(sign, {6, 5});
    EXPECT_TRUE(text.isVisible());
    EXPECT_EQ(text.text(), "About Escorpio");
    EXPECT_FALSE(text.geometry().intersects({sign.mapTo(&window, QPoint()), sign.size()}));
    move(sign, {-1, 5});
    EXPECT_FALSE(text.isVisible());
    EXPECT_EQ(QWidget::mouseGrabber(), nullptr);

    for (const auto& goAway : {+[](QWidget& w) { w.hide(); }, +[](QWidget& w) { w.close(); },
                               +[](QWidget& w) {
                                   QEvent blocked(QEvent::WindowBlocked);
                                   QCoreApplication::sendEvent(&w, &blocked);
                               }}) {
        window.showNormalState();
        move(sign, {5, 5}, 5);
        ASSERT_EQ(QWidget::mouseGrabber(), &sign);
        goAway(window);
        EXPECT_EQ(QWidget::mouseGrabber(), nullptr);
        EXPECT_FALSE(text.isVisible());
    }
    QTest::keyPress(&sign, Qt::Key_Space);
    EXPECT_FALSE(text.isHidden());
    QTest::keyRelease(&sign, Qt::Key_Space);
    EXPECT_TRUE(text.isHidden());
}

TEST_F(CardOfDay, TheMoonTellsItsPhasesWhileTheMouseRestsOnIt) {
    auto& window = start();
    auto& moon = control<shell::PictureBox>(window, "ImgLuna");
    move(moon, {5, 5}, 5);
    ASSERT_NE(moonDetails(), nullptr);
    EXPECT_TRUE(moonDetails()->isVisible());
    EXPECT_EQ(textOf(*moonDetails(), "LabelResum"), "Moon Waxing Crescent: 31% from Full");
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

TEST_F(CardOfDay, WelcomesAtEachLoadWhileNoBirthDateIsSet) {
    files.contents.erase(files.contents.find(files.directory + "/bio.dat"));
    auto& window = start();
    press(window, "PictActualize");
    const std::string welcome = "Welcome to Velmoriax, change the birth date to calculate biorhythms.";
    EXPECT_EQ(notification.texts, (std::vector{welcome, welcome}));
    EXPECT_EQ(sounds.played, (std::vector<std::string>{"Url.wav", "Url.wav"}));
}

} // namespace
} // namespace velmoriax::tarot
