// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/helpers.h"
#include "tarot/day_view.h"

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
    const test::Table<const char*, const char*, bool, MidnightStep> rows{
        {"0:00:01", "nomuted", false, showNewDay}, {" 0:00:01 ", "nomuted", false, showNewDay},
        {"0:00:01", "muted", false, none},         {"0:00:00", "nomuted", false, none},
        {"12:00:01", "nomuted", false, none},      {"0:00:30", "nomuted", true, hideAgain},
        {"0:00:30", "muted", true, hideAgain},     {"0:00:30", "nomuted", false, none}};
    for (const auto& [time, muteCod, refreshing, step] : rows)
        EXPECT_EQ(midnightStep(time, muteCod, refreshing), step) << time << ' ' << muteCod;
}

TEST(DayViewTest, TheGaugeCountsOnWhileTheWindowsChange) {
    std::int16_t gaugeTicks = 20; // left by a window that is gone
    MinuteCounts counts;
    std::vector<int> gauge, sky;
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
