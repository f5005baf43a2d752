// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/date_value.h"
#include "support/helpers.h"

namespace velmoriax::base {
namespace {

TEST(DateValue, KnownMomentsInBothDirections) {
    const test::Table<CivilMoment, DateValue, const char*> rows{
        {{{1899, 12, 30}, {0, 0, 0}}, 0.0, "the zero day"},
        {{{1899, 12, 28}, {18, 0, 0}}, -2.75, "days count down, the time of day still counts up"},
        {{{1899, 12, 29}, {6, 0, 0}}, -1.25, "the day before the zero day"},
        {{{2026, 11, 15}, {12, 0, 0}}, 46341.5, "a present noon"},
        {{{1582, 10, 15}, {0, 0, 0}}, -115858.0, "the calendar is proleptic: nothing happens at the reform"},
        {{{100, 1, 1}, {0, 0, 0}}, -657434.0, "the first day"},
        {{{9999, 12, 31}, {23, 59, 59}}, 2958465.0 + 86399.0 / 86400.0, "the last second"},
        {{{2000, 2, 29}, {0, 0, 0}}, 36585.0, "2000 is a leap year"},
    };
    for (const auto& [moment, value, why] : rows) {
        EXPECT_DOUBLE_EQ(dateValueOf(moment.date, moment.time), value) << why;
        EXPECT_EQ(civilMomentOf(value), moment) << why;
    }
}

TEST(DateValue, EveryHundredthSecondOfOddDaysComesBack) {
    for (const CivilDate date :
         {CivilDate{1850, 3, 1}, CivilDate{1899, 12, 29}, CivilDate{1899, 12, 30}, CivilDate{2038, 1, 19}})
        for (int second = 0; second < 86400; second += 97) {
            const CivilTime time{second / 3600, second / 60 % 60, second % 60};
            EXPECT_EQ(civilMomentOf(dateValueOf(date, time)), (CivilMoment{date, time}));
        }
}

TEST(DateValue, RoundsAndMovesOverTheZeroDay) {
    EXPECT_EQ(civilMomentOf(46341.999998), (CivilMoment{{2026, 11, 16}, {0, 0, 0}})) << "half a second before midnight";
    EXPECT_EQ(civilMomentOf(-2.999998), (CivilMoment{{1899, 12, 29}, {0, 0, 0}}));
    EXPECT_EQ(civilMomentOf(addMinutes(-1.75, 360)), (CivilMoment{{1899, 12, 30}, {0, 0, 0}}));
    EXPECT_EQ(civilMomentOf(addMinutes(0.25, -7 * 60)), (CivilMoment{{1899, 12, 29}, {23, 0, 0}}));
    for (const double value : {-2.75, -0.5, 0.25, 46341.5})
        EXPECT_DOUBLE_EQ(addMinutes(addMinutes(value, 61), -61), value == -0.5 ? 0.5 : value);
}

TEST(DateValue, DaysAndWeekdaysOfTheTrueCalendar) {
    EXPECT_EQ(daysBetween({1980, 3, 15}, {2026, 6, 20}), 16898);
    EXPECT_EQ(daysBetween({2026, 6, 20}, {1980, 3, 15}), -16898);
    EXPECT_EQ(weekdayOf({2026, 11, 15}), 1);
    EXPECT_EQ(weekdayOf({2000, 2, 29}), 3);
    EXPECT_EQ(daysInMonth(1900, 2), 28);
    EXPECT_FALSE(isValid(CivilDate{2026, 2, 29}) || isValid(CivilDate{99, 12, 31}) || isValid(CivilTime{24, 0, 0}));
}

} // namespace
} // namespace velmoriax::base
