// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/bio_chart.h"
#include "biorhythm/bio_view.h"
#include "biorhythm/profile_files.h"
#include "biorhythm/view_dates.h"
#include "support/fakes.h"

namespace velmoriax::biorhythm {
namespace {

const base::DateValue evening = base::dateValueOf({2026, 6, 20}, {18, 30, 0});
constexpr base::CivilMoment birth{{1980, 3, 15}, {7, 45, 0}};

TEST(ViewDates, CountEveryCenturyYearAsACommonOne) {
    EXPECT_EQ(daysInViewMonth(2024, 2), 29);
    EXPECT_EQ(daysInViewMonth(2000, 2), 28);
    EXPECT_EQ(withinView({1850, 3, 31}), (base::CivilDate{1900, 3, 31}));
    EXPECT_EQ(withinView({2000, 2, 29}), (base::CivilDate{2000, 2, 28}));
}

TEST(ViewDates, GoThroughTheirWholeRangeAndBack) {
    base::CivilDate date{1900, 1, 1};
    EXPECT_EQ(dayBefore(date), date);
    int days = 1;
    for (; dayAfter(date) != date; ++days) {
        const base::CivilDate next = dayAfter(date);
        ASSERT_EQ(dayBefore(next), date);
        date = next;
    }
    EXPECT_EQ(date, (base::CivilDate{2100, 12, 31}));
    EXPECT_EQ(days, 201 * 365 + 48) << "no day is left out; 2000 is not a leap year here";
}

TEST(BioView, ShowsACalculation) {
    BioState state;
    BioViewState view{true, birth, {2026, 6, 20}, {2026, 6, 10}, 0};
    const BioShown shown = calcBio(state, view, evening);
    EXPECT_EQ(shown.livedDays, "16898.45");
    EXPECT_EQ(shown.remainingDays, -10);
    EXPECT_EQ(shown.cycles[emotional].caption, "(-9.74 %)");
    EXPECT_EQ(shown.cycles[emotional].trend, shell::Trend::falling);
    EXPECT_EQ(shown.cycles[intellectual].colour, (base::Colour{150, 250, 100}));
    EXPECT_EQ(shown.average, "-39.20% (negative: bad day)");
    EXPECT_EQ(shown.time, "Time: 18:30:00");
    EXPECT_FALSE(birthDateIsSet(state)) << "the state takes the birth over when it is saved";
    view = {true, {{2026, 6, 20}, {18, 30, 0}}, {2026, 6, 20}, {2026, 6, 20}, 0};
    const BioShown newborn = calcBio(state, view, evening);
    EXPECT_EQ(newborn.livedDays, "0.00");
    EXPECT_EQ(newborn.averageColour, pureGreen);
    EXPECT_EQ(birthTimeCaption({7, 5, 0}), "Time: 7:05");
}

TEST(BioView, BringsTheDayWithinAMonthThatIsChosenAfterIt) {
    BioViewState view;
    takeReadingDate(view, {1900, 2, 31});
    EXPECT_EQ(view.reading, (base::CivilDate{1900, 2, 28}));
    EXPECT_TRUE(view.manualDate);
    takeBirthDate(view, {1980, 2, 30});
    EXPECT_EQ(view.birth.date, (base::CivilDate{1980, 2, 29}));
    EXPECT_FALSE(view.manualDate) << "a change of the birth returns to today";
}

TEST(BioView, ReturnsToTodayEachHalfHour) {
    BioState state;
    BioViewState view{true, birth, {2031, 1, 1}, {2031, 1, 2}, 0};
    EXPECT_EQ(calcBio(state, view, evening).remainingDays, 1);
    for (int tick = 1; tick < 60; ++tick) ASSERT_FALSE(halfHourIsOver(view)) << tick;
    EXPECT_TRUE(halfHourIsOver(view));
    calcBio(state, view, evening);
    calcBio(state, view, evening + 1);
    EXPECT_EQ(view.reading, (base::CivilDate{2026, 6, 20})) << "it stays there past midnight until the next return";
}

TEST(BioView, PicksAPersonOfTheList) {
    test::FakeFiles files;
    shell::OptionsStore options(files);
    BioState state;
    BioViewState view;
    createMissingProfileFiles(files);
    loadBioView(files, state, view, {2026, 6, 20});
    EXPECT_EQ(view.birth, (base::CivilMoment{{1900, 1, 1}, {12, 0, 0}}));
    files.at("\\perfiles.txt") = "Ann,January/31/1980,7:45\r\nLeap,February/29/2000,1:00\r\nBad,March/15,7:45\r\n";
    view.manualDate = true;
    EXPECT_FALSE(pickProfile(files, options, view, "Bad"));
    EXPECT_TRUE(view.manualDate);
    EXPECT_TRUE(pickProfile(files, options, view, "Ann"));
    EXPECT_FALSE(view.manualDate) << "a change of the birth returns to today";
    EXPECT_EQ(view.birth, (base::CivilMoment{{1980, 1, 31}, {7, 45, 0}})) << "the day as stored";
    EXPECT_EQ(options.option(shell::key::perfilBio), "Ann");
    EXPECT_TRUE(pickProfile(files, options, view, "Leap"));
    EXPECT_EQ(view.birth.date, (base::CivilDate{2000, 2, 28})) << "the nearest date that the view can show";
}

TEST(BioChart, HasTheReadingInItsFifteenthRow) {
    SecondProfile second;
    const float lived = livedOf(birth, {2024, 2, 20}, {18, 30, 0}).lived;
    const ChartData chart = mschart(lived, second, 5, {{2024, 2, 20}, {18, 30, 0}});
    EXPECT_EQ(chart.seriesCount, 4U);
    EXPECT_EQ(chart.rowLabels.front(), 6);
    EXPECT_EQ(chart.rowLabels[readingRow + 9], 29);
    EXPECT_EQ(chart.rowLabels[readingRow + 10], 1);
    for (std::size_t i = 0; i < cycleCount; ++i) {
        EXPECT_EQ(chart.chartData[readingRow][i], computeCycleAt(lived, cycleTable[i].period));
        EXPECT_EQ(chart.chartData.back()[i], computeCycleAt(lived + 15.0, cycleTable[i].period));
    }
}

TEST(BioChart, DrawsASecondPersonOnlyIfTwoAreSaved) {
    test::FakeFiles files;
    shell::OptionsStore options(files);
    files.at("\\perfiles.txt") = "Ann,March/15/1980,7:45\r\nBea,May/1/1990,8:00\r\n";
    SecondProfile second;
    storeDrawSecond(options, second, true);
    storeSecondName(options, second, "Bea");
    SecondProfile read;
    readSecondProfile(files, options, read);
    EXPECT_EQ(read.secondDate, (base::CivilDate{1990, 5, 1}));
    EXPECT_FALSE(loadSecondProfile(files, "Cid", read));
    EXPECT_EQ(read.secondTime.hour, 8) << "the birth that was loaded last is kept";
    EXPECT_EQ(mschart(100, read, 1, {{2026, 6, 20}, {}}).seriesCount, 4U);
    const ChartData chart = mschart(100, read, 2, {{1990, 5, 2}, {8, 0, 0}});
    EXPECT_EQ(chart.seriesCount, 8U);
    EXPECT_EQ(chart.chartData[readingRow - 1][cycleCount + physical], 0.0F) << "born a day before the reading";
}

} // namespace
} // namespace velmoriax::biorhythm
