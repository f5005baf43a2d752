// SPDX-License-Identifier: GPL-3.0-or-later
#include "day_fixture.h"

#include <QDateTime>

namespace velmoriax::shell {
namespace {

using Hub = test::DayFixture;

TEST_F(Hub, StartsWithAnAlertAndRunsTheNextAfterHalfAnHour) {
    option(key::nivelAlertas.data(), "Only actual situation");
    start();
    EXPECT_TRUE(files.has("\\biofinal.dat")) << "files of a first start come into being";
    ASSERT_TRUE(QTest::qWaitFor([&] { return !notification.texts.empty(); })) << "when the first window stands";
    EXPECT_TRUE(notification.texts[0].starts_with("Physical: "));
    EXPECT_FALSE(record.alerts.startupAlert);

    record.options.holders.alertLevel = "maxi";
    record.alerts.manualAlert = true;
    record.alerts.lastAlertKey = "what the last run told";
    for (int tick = 1; tick < 60; ++tick) fire(hub, "TimerBio");
    EXPECT_EQ(notification.texts.size(), 1U);
    fire(hub, "TimerBio");
    EXPECT_EQ(notification.texts.size(), 2U);
    EXPECT_FALSE(record.alerts.manualAlert);
}

TEST_F(Hub, TakesTheNotificationAwayAfterItsTimeAndReadsNoFileForTheClock) {
    start();
    notification.open = record.shell.notifOpen = true;
    files.contents.clear();
    run({2026, 11, 15}, {12, 0, 1}, 29);
    EXPECT_TRUE(notification.isOpen());
    run({2026, 11, 15}, {12, 0, 30}, 1);
    EXPECT_FALSE(notification.isOpen());
}

TEST_F(Hub, TheTipWorksOutACardADayWithOrWithoutAWindow) {
    option(key::moduloInicial.data(), "Another Day...");
    start();
    const TipLines lines = process.tips->tipLines();
    EXPECT_EQ(lines.tipCard, "Card of Day: XVIII. The Moon");
    EXPECT_EQ(lines.tipSign, "Zodiac Sign: Scorpio");
    EXPECT_TRUE(lines.bioTipText.starts_with("Biorhythms (avg.): "));
    EXPECT_EQ(lines.tipMoon, "Moon Phase(illum.): 31.47 % (>)");

    record.cards.currentCard = 3;
    clock.set({2026, 11, 15}, {23, 59, 59});
    process.tips->tipLines();
    EXPECT_EQ(record.cards.currentCard, 3) << "no card was drawn a second time";
    clock.set({2026, 11, 16}, {0, 0, 0});
    EXPECT_EQ(process.tips->tipLines().tipCard, "Card of Day: XIX. The Sun");
}

TEST_F(Hub, LivesWithoutANotificationAndWithAClockThatIsSetBack) {
    process.notification = nullptr;
    start();
    record.shell.notifOpen = true;
    run({2026, 11, 15}, {12, 0, 0}, 40);
    run({2026, 11, 14}, {3, 0, 0}, 5);
    for (int tick = 0; tick < 61; ++tick) fire(hub, "TimerBio");
    EXPECT_EQ(record.agent.LblTime, "3:00:04");
}

TEST_F(Hub, TheSecondsTimerTicksOnceInEachSecond) {
    SecondTimer timer(20, nullptr);
    timer.begin();
    EXPECT_GT(timer.interval(), 0);
    EXPECT_LE(timer.interval(), 1020);
    timer.stop();
    QMetaObject::invokeMethod(&timer, "timeout");
    EXPECT_TRUE(timer.isActive()) << "each tick sets the next";
    const auto next = QDateTime::currentMSecsSinceEpoch() + timer.remainingTime();
    EXPECT_NEAR(double(next % 1000), 20, 15) << "soon after the second has begun";
}

} // namespace
} // namespace velmoriax::shell
