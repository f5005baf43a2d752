// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/day_view.h"

#include <gtest/gtest.h>

#include <vector>

namespace velmoriax::tarot {
namespace {

TEST(DayViewTest, TellsTheDateInBothWindows) {
    EXPECT_EQ(cardOfDayDateLine({2026, 11, 15}), "Sunday, November 15, 2026 (The Sun)");
    EXPECT_EQ(cardOfDayDateLine({2027, 1, 2}), "Saturday, January 2, 2027 (Saturn)");
    // The weekday is the next day's; a Saturday is told as a Sunday.
    EXPECT_EQ(chosenDateLine({2026, 11, 15}), "Monday , November 15 of 2026");
    EXPECT_EQ(chosenDateLine({2000, 2, 29}), "Wednesday , February 29 of 2000");
    EXPECT_EQ(chosenDateLine({2026, 11, 21}), "Sunday , November 21 of 2026");
    EXPECT_EQ(chosenDateLine({100, 1, 1}), "Saturday , January 1 of 100");
}

TEST(DayViewTest, OnlyTwoSecondsOfADayBringAStep) {
    using enum MidnightStep;
    struct Row {
        const char* time;
        const char* muteCod;
        bool refreshing;
        MidnightStep step;
    };
    for (const Row& row : {Row{"0:00:01", "nomuted", false, showNewDay}, Row{" 0:00:01 ", "nomuted", false, showNewDay},
                           Row{"0:00:01", "muted", false, none}, Row{"0:00:00", "nomuted", false, none},
                           Row{"12:00:01", "nomuted", false, none}, Row{"0:00:30", "nomuted", true, hideAgain},
                           Row{"0:00:30", "muted", true, hideAgain}, Row{"0:00:30", "nomuted", false, none}})
        EXPECT_EQ(midnightStep(row.time, row.muteCod, row.refreshing), row.step) << row.time << ' ' << row.muteCod;
}

TEST(DayViewTest, TheGaugeCountsOnWhileTheWindowsChange) {
    std::int16_t gaugeTicks = 20; // left by a window that is gone
    MinuteCounts counts;
    std::vector<int> gauge;
    std::vector<int> sky;
    for (int minute = 1; minute <= 120; ++minute) {
        const MinuteWork work = minuteTick(gaugeTicks, counts);
        if (work.gauge) gauge.push_back(minute);
        if (work.moon) sky.push_back(minute);
        EXPECT_EQ(work.moon, work.sign);
    }
    EXPECT_EQ(gauge, (std::vector{10, 40, 70, 100}));
    EXPECT_EQ(sky, (std::vector{60, 120}));
}

} // namespace
} // namespace velmoriax::tarot
