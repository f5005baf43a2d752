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
    ASSERT_EQ(notification.texts.size(), 1U);
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

TEST_F(Hub, TheTipIsWorkedOutWithOrWithoutAWindow) {
    option(key::moduloInicial.data(), "Another Day...");
    start();
    const TipLines lines = process.tips->tipLines();
    EXPECT_EQ(lines.card, "Card of Day: XVIII. The Moon");
    EXPECT_EQ(lines.sign, "Zodiac Sign: Scorpio");
    EXPECT_TRUE(lines.bio.starts_with("Biorhythms (avg.): "));
    EXPECT_EQ(lines.moon, "Moon Phase(illum.): 31.47 % (>)");
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
    EXPECT_TRUE(timer.interval() > 0 && timer.interval() <= 1020);
    timer.stop();
    const qint64 before = QDateTime::currentMSecsSinceEpoch();
    QMetaObject::invokeMethod(&timer, "timeout");
    const qint64 taken = QDateTime::currentMSecsSinceEpoch() - before;
    EXPECT_TRUE(timer.isActive()) << "each tick sets the next";
    EXPECT_LE((1020 - (before + timer.interval()) % 1000) % 1000, taken) << "20 ms after the second has begun";
}

} // namespace
} // namespace velmoriax::shell
