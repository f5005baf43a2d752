// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/background_agent.h"
#include "support/table.h"

namespace velmoriax::shell {
namespace {

struct BackgroundAgent : testing::Test {
    void start(base::CivilTime time) { startUptime(agent, base::dateValueOf({2026, 11, 15}, time)); }

    /// Ticks once a second from the moment on.
    void run(base::CivilDate date, base::CivilTime from, int seconds) {
        const int first = from.hour * 3600 + from.minute * 60 + from.second;
        for (int second = first; second < first + seconds; ++second) tick(date, second);
    }
    void tick(base::CivilDate date, int second) {
        const base::CivilDate day = base::civilDateOfDay(base::dayNumber(date) + second / 86400);
        timeUpTick(agent, base::dateValueOf(day, {second / 3600 % 24, second / 60 % 60, second % 60}), false);
    }

    AgentRecord agent;
};

TEST_F(BackgroundAgent, UptimeGoesOnOverMidnightAndDaysCount) {
    start({23, 0, 0});
    run({2026, 11, 15}, {23, 0, 0}, 3601);
    EXPECT_EQ(agent.LblTime, "0:00:00");
    EXPECT_EQ(agent.LblUptime, "22:00:01") << "the text of a negative time in the very tick of midnight";
    run({2026, 11, 16}, {0, 0, 1}, 1);
    EXPECT_EQ(agent.LblUptime, "1:00:00");
    EXPECT_EQ(agent.LblDias, "0d ");
    run({2026, 11, 16}, {0, 0, 2}, 23 * 3600);
    EXPECT_EQ(agent.LblDias, "1d ");
    run({2026, 11, 16}, {23, 0, 2}, 2 * 86400);
    EXPECT_EQ(agent.LblDias, "3d ");
}

TEST_F(BackgroundAgent, ABusySecondBeforeMidnightLosesTheStretchOfTheDay) {
    start({23, 59, 0});
    for (const int second : {86398, 86400, 86405}) tick({2026, 11, 15}, second);
    EXPECT_EQ(agent.LblUptime, "0:00:05");
}

TEST_F(BackgroundAgent, TheNotificationStandsThirtyTicks) {
    const base::DateValue now = 46341.5;
    for (int i = 1; i < 30; ++i) EXPECT_FALSE(timeUpTick(agent, now, true)) << i;
    EXPECT_TRUE(timeUpTick(agent, now, true));
    EXPECT_EQ(agent.notifTicks, 0);
    for (int i = 0; i < 20; ++i) timeUpTick(agent, now, true);
    EXPECT_FALSE(timeUpTick(agent, now, false)) << "closed earlier";
    EXPECT_EQ(agent.notifTicks, 0) << "a count does not go on with the next notification";
}

TEST_F(BackgroundAgent, AlertsRunEverySixtiethHalfMinute) {
    for (int round = 0; round < 2; ++round) {
        for (int i = 1; i < 60; ++i) EXPECT_FALSE(timerBioTick(agent));
        EXPECT_TRUE(timerBioTick(agent));
    }
}

TEST_F(BackgroundAgent, TheCardIsWorkedOutOnceADay) {
    tarot::CardState cards;
    tipcartadia(agent, {2026, 11, 15}, "/home/ann/velmoriax", "marsellaone", cards);
    EXPECT_EQ(agent.tipCard, "Card of Day: XVIII. The Moon");
    cards.currentCard = 3;
    tipcartadia(agent, {2026, 11, 15}, "/home/ann/velmoriax", "marsellaone", cards);
    EXPECT_EQ(cards.currentCard, 3) << "nothing is computed a second time";
    tipcartadia(agent, {2026, 11, 16}, "/home/ann/velmoriax", "marsellaone", cards);
    EXPECT_EQ(agent.tipCard, "Card of Day: XIX. The Sun");
}

} // namespace
} // namespace velmoriax::shell
