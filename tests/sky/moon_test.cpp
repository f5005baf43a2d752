// SPDX-License-Identifier: GPL-3.0-or-later
#include "sky/moon_engine.h"
#include "sky/moon_illumination.h"
#include "sky/moon_pictures.h"
#include "sky/moon_texts.h"
#include "support/fakes.h"

#include <array>

namespace velmoriax::sky {
namespace {

using base::DateValue;
using enum MoonPhase;

constexpr double second = 1.0 / 86400;
constexpr DateValue longLunationsEnd = 36531.7597222222; ///< 2000-01-06 18:14, seconds before a new moon

struct MoonEngineTest : testing::Test {
    test::FakeEvents events;
    MoonEngine engine{events};

    /// Moments spread over 1700 to 2300 at all hours.
    template<typename Check>
    static void overCenturies(Check check) {
        constexpr double step = 73.2137;
        const double begin = base::dayNumber({1700, 1, 1});
        const double end = base::dayNumber({2300, 1, 1});
        for (double day = begin; day < end; day += step) check(base::fromLinearDays(day));
    }
    static DateValue moved(DateValue date, double days) { return base::fromLinearDays(base::linearDays(date) + days); }
};

TEST(JulianDay, KeepsTheFormOfTheDateValue) {
    const test::Table<DateValue, JulianDay, const char*> rows{
        {-2.75, 2415017.25, "days count down, the time of day still counts up"},
        {base::dateValueOf({1582, 10, 15}, {6, 0, 0}), 2299160.75, "the day after the reform"},
        {-115959, 2299069.5, "ten days are added before the reform"},
        {2, 2415020.5, ""},
    };
    for (const auto& [date, julianDay, why] : rows) {
        EXPECT_DOUBLE_EQ(julianDayFromDate(date), julianDay) << why;
        EXPECT_DOUBLE_EQ(dateFromJulianDay(julianDay), date) << why;
    }
    EXPECT_DOUBLE_EQ(julianDayFromDate(0), 2415018.5);
    EXPECT_DOUBLE_EQ(dateFromJulianDay(2415019.0), -1.5) << "the threshold lies two days late";
    for (const JulianDay outside : {1757593.5, 5373484.5}) EXPECT_EQ(dateFromJulianDay(outside), 0);
}

TEST(MoonPhaseSeries, FoldsTheLastHalfDegreeToTheWrongSide) {
    // A tie such as 359.5 goes to the even 360.
    for (const auto& [x, folded] : test::Table<double, double>{
             {359.7, 0.3}, {719.6, 0.4}, {-359.7, -0.3}, {-10.4, -10.4}, {359.4, 359.4}, {359.5, 0.5}})
        EXPECT_NEAR(truncatedModulo(x, 360), folded, 1e-9) << x;
}

// The series with this program's fold and argument of latitude, in plain double arithmetic.
TEST_F(MoonEngineTest, ReturnsTheReferenceValues) {
    EXPECT_NEAR(moonPhaseJulianDay(1285, newMoon), 2461353.79388, 5e-6);
    EXPECT_NEAR(moonPhaseJulianDay(1285, firstQuarter), 2461361.99235, 5e-6);
    EXPECT_NEAR(moonPhaseJulianDay(1285, fullMoon), 2461369.12130, 5e-6);
    EXPECT_NEAR(moonPhaseJulianDay(1285, lastQuarter), 2461375.75684, 5e-6);
    const test::Table<DateValue, int, double, double, double> rows{
        {46341.5, 1285, 6.20612, 75.657, 5e-4},
        {38518, 1020, 8.08594, 98.574, 5e-4},
        {longLunationsEnd, 952, 29.82033, 363.53, 5e-3},
    };
    for (const auto& [date, lunation, age, angle, tolerance] : rows) {
        EXPECT_EQ(engine.lunationOfDate(date), lunation);
        EXPECT_NEAR(engine.moonAgeDays(date), age, 5e-6);
        EXPECT_NEAR(engine.moonPhaseAngle(date), angle, tolerance);
    }
    const DateValue justBefore = dateFromJulianDay(moonPhaseJulianDay(1285, newMoon)) - second / 4;
    EXPECT_EQ(engine.lunationOfDate(justBefore), 1285) << "the search looks half a second ahead";
    EXPECT_LT(engine.moonAgeDays(justBefore), 0);
}

// Instants in universal time, to the minute, as F. Espenak publishes them (Phases of the Moon, NASA Goddard Space
// Flight Center); the first is also the worked example of Meeus. The engine shows the series' own time scale, a minute
// ahead of universal time in these decades: two minutes leave room for that, the minute's rounding and the series. In
// the last row a leading argument lies in the last half degree of its turn, and its fold takes nine minutes off.
TEST_F(MoonEngineTest, AgreesWithAlmanacsAsFarAsItsFoldsAllow) {
    constexpr double minute = 1.0 / 1440;
    const test::Table<MoonPhase, base::CivilDate, base::CivilTime, double> rows{
        {newMoon, {1977, 2, 18}, {3, 37, 0}, 0},        {newMoon, {1999, 8, 11}, {11, 8, 0}, 0},
        {fullMoon, {2001, 1, 9}, {20, 24, 0}, 0},       {newMoon, {2017, 8, 21}, {18, 30, 0}, 0},
        {fullMoon, {2018, 1, 31}, {13, 27, 0}, 0},      {newMoon, {2024, 4, 8}, {18, 21, 0}, 0},
        {firstQuarter, {2026, 11, 17}, {11, 48, 0}, 0}, {lastQuarter, {2026, 12, 1}, {6, 9, 0}, 0},
        {firstQuarter, {2008, 2, 14}, {3, 33, 0}, -8.9}};
    for (const auto& [phase, date, time, fold] : rows) {
        const DateValue published = base::dateValueOf(date, time);
        const JulianDay computed = moonPhaseJulianDay(engine.lunationOfDate(published + 1), phase);
        EXPECT_NEAR((computed - julianDayFromDate(published)) / minute, fold, 2) << date.year;
    }
}

TEST_F(MoonEngineTest, PhasesOfALunationAreInOrderAndTheNamesChangeAtThem) {
    const test::Table<MoonPhase, std::string, std::string> changes{
        {newMoon, "Wanning Crescent", "Waxing Crescent"},
        {firstQuarter, "Waxing Crescent", "Waxing Gibbous"},
        {fullMoon, "Waxing Gibbous", "Waning Gibbous"},
        {lastQuarter, "Waning Gibbous", "Wanning Crescent"},
    };
    overCenturies([&](DateValue date) {
        const std::int32_t lunation = engine.lunationOfDate(date);
        JulianDay last = moonPhaseJulianDay(lunation - 1, lastQuarter);
        for (const auto& [phase, before, since] : changes) {
            const JulianDay instant = moonPhaseJulianDay(lunation, phase);
            EXPECT_TRUE(instant - last > 6.3 && instant - last < 8.5) << date;
            const DateValue exact = dateFromJulianDay(instant);
            EXPECT_EQ(engine.moonPhaseName(moved(exact, -second)), before) << date;
            EXPECT_EQ(engine.moonPhaseName(exact), since) << date;
            last = instant;
        }
    });
}

TEST_F(MoonEngineTest, NextAndPreviousPhasesEncloseTheMoment) {
    using Step = DateValue (MoonEngine::*)(DateValue) const;
    constexpr std::array<std::pair<Step, Step>, 4> steps{
        {{&MoonEngine::nextNewMoon, &MoonEngine::previousNewMoon},
         {&MoonEngine::nextFirstQuarter, &MoonEngine::previousFirstQuarter},
         {&MoonEngine::nextFullMoon, &MoonEngine::previousFullMoon},
         {&MoonEngine::nextLastQuarter, &MoonEngine::previousLastQuarter}}};
    const auto at = [this](Step step, DateValue date) { return (engine.*step)(date); };
    overCenturies([&](DateValue date) {
        for (const auto& [next, previous] : steps) {
            const DateValue before = at(previous, date);
            const DateValue after = at(next, date);
            EXPECT_TRUE(base::isBefore(before, date) && base::isBefore(date, after)) << date;
            EXPECT_EQ(at(next, before), after) << date;
            EXPECT_EQ(at(next, moved(before, -second)), before) << date;
            // The new moon of a new moon's own lunation is that new moon; the others go back a lunation.
            const bool isNewMoon = previous == steps[0].second;
            EXPECT_EQ(at(previous, after), isNewMoon ? after : before) << date;
        }
    });
}

TEST_F(MoonEngineTest, HasNoNameOutsideItsCalendar) {
    for (const DateValue refused : {-657418.2, -657418.0, 2958466.0, -115868.5, -115860.0})
        EXPECT_EQ(engine.moonPhaseName(refused), "") << refused;
    for (const DateValue named : {-657417.0, 2958465.0, -115869.0, -115859.0})
        EXPECT_NE(engine.moonPhaseName(named), "") << named;
}

// The search would never end if it tried a lunation that ends exactly at its target.
TEST_F(MoonEngineTest, StartsWithTheRightLunationAtEveryNewMoonOfTheCalendar) {
    const std::int32_t first = engine.lunationOfDate(base::dateValueOf({101, 1, 1}, {}));
    const std::int32_t last = engine.lunationOfDate(base::dateValueOf({9998, 12, 31}, {}));
    const std::int32_t badlyDated = engine.lunationOfDate(1); // date values 0 to 2 do not come back from a Julian day
    for (std::int32_t lunation = first; lunation <= last; ++lunation) {
        if (lunation == badlyDated) continue;
        events.runs = 0;
        EXPECT_EQ(engine.lunationOfDate(dateFromJulianDay(moonPhaseJulianDay(lunation, newMoon))), lunation);
        EXPECT_EQ(events.runs, 1) << lunation;
    }
}

TEST_F(MoonEngineTest, CanBeCalledAgainInsideItsSearch) {
    const DateValue expected = engine.nextFullMoon(46341.5);
    events.runs = 0;
    bool inside = false;
    events.whatRuns = [&] {
        if (inside) return;
        inside = true;
        EXPECT_EQ(engine.lunationOfDate(38518), 1020);
        inside = false;
    };
    EXPECT_EQ(engine.nextFullMoon(46341.5), expected);
    EXPECT_GT(events.runs, 1) << "events run once a round, the inner search's included";
}

TEST(MoonPictures, FollowTheRuleOfTheirWindow) {
    const test::Table<float, const char*, const char*, const char*> rows{
        {0, "moon0.gif", "moon0.gif", "new moon"},
        {12, "moon1.gif", "moon0.gif", "the upper edge belongs to the next picture or to this"},
        {13, "moon1.gif", "moon0.gif", "6.5 goes to the even 6"},
        {13.1F, "moon1.gif", "moon1.gif", "above the tie"},
        {359, "moon30.gif", "moon29.gif", "179.5 goes to the even 180"},
        {361, "moon30.gif", "moon29.gif", "180.5 goes to the even 180"},
        {361.1F, "moon30.gif", "", "no name: the picture that is shown is kept"}};
    for (const auto& [angle, cardOfDay, anotherDay, why] : rows) {
        EXPECT_EQ(moonPictureName(angle, MoonPictureRule::cardOfDay), cardOfDay) << why;
        EXPECT_EQ(moonPictureName(angle, MoonPictureRule::anotherDay), anotherDay) << why;
    }
}

using base::DateValue;

constexpr DateValue november2026 = 46341.5; ///< 2026-11-15 12:00

struct MoonTextsTest : testing::Test {
    test::FakeEvents events;
    MoonEngine engine{events};

    MoonDetails details(DateValue moment, bool showPrevious = false) {
        return refreshMoonDetails(engine, {moment, moonIllumination(moment)}, showPrevious);
    }
};

// The formulas of moon_illumination.h in plain double arithmetic.
TEST(MoonIllumination, ReturnsTheReferenceValues) {
    for (const auto& [date, fraction, degrees] : test::Table<DateValue, double, double>{
             {november2026, 0.31473, 68.2517},
             {38518, 0.49458, 89.3792},
             {36526, 0.27140, -62.7933} /* negative: the two longitudes are folded apart */}) {
        const MoonLight light = moonIllumination(date);
        EXPECT_NEAR(light.moonIlluminatedFraction, fraction, 5e-6);
        EXPECT_NEAR(light.moonAgeDegrees, degrees, 5e-5);
    }
    EXPECT_NEAR(moonIllumination(36531.7597222222).moonIlluminatedFraction, 1.05e-6, 5e-9)
        << "seconds before a new moon";
}

// Two models without anything in common but the calendar.
TEST_F(MoonTextsTest, IlluminationAgreesWithThePhases) {
    for (DateValue date = november2026; date < november2026 + 4000; date += 29.7) {
        EXPECT_LT(moonIllumination(engine.nextNewMoon(date)).moonIlluminatedFraction, 0.001) << date;
        EXPECT_GT(moonIllumination(engine.nextFullMoon(date)).moonIlluminatedFraction, 0.999) << date;
        EXPECT_NEAR(moonIllumination(engine.nextLastQuarter(date)).moonIlluminatedFraction, 0.5, 0.01) << date;
    }
}

TEST_F(MoonTextsTest, WindowShowsTheMomentAndThePhasesToComeOrBeforeYesterday) {
    const MoonDetails shown = details(november2026);
    EXPECT_EQ(shown.labelDetall, "Illumination: 0.3147348    (0 <----> 1)\nAge of Moon: 6.2061225 days");
    EXPECT_EQ(shown.labelInfo, "Next Full Moon: 11/24/2026 14:54:40 UT\n"
                               "Next New Moon: 12/9/2026 0:53:00 UT\n"
                               "Next First Quarter: 11/17/2026 11:48:59 UT\n"
                               "Next Last Quarter: 12/1/2026 6:09:51 UT");
    EXPECT_EQ(shown.moonPercentText, "31%");
    EXPECT_EQ(shown.labelAd, "(Click on the Moon to see next)");
    const MoonDetails previous = details(46336.0, true); // half a day after the new moon of November 9, 2026
    EXPECT_EQ(previous.labelInfo, "Previous Full Moon: 10/26/2026 4:12:57 UT\n"
                                  "Previous New Moon: 10/10/2026 15:51:10 UT\n"
                                  "Previous First Quarter: 10/18/2026 16:13:45 UT\n"
                                  "Previous Last Quarter: 11/1/2026 20:29:36 UT");
    EXPECT_EQ(previous.labelAd, "(Click on the Moon to see previous)");
}

TEST_F(MoonTextsTest, WindowDayAndTrayNameTheSameMoment) {
    const test::Table<base::CivilDate, const char*, const char*, const char*> rows{
        {{2026, 11, 15},
         "Moon Waxing Crescent: 31% from Full",
         "Waxing Crescent: 31.47% of Full",
         "Moon Phase(illum.): 31.47 % (>)"},
        {{2026, 11, 9}, "New Moon", "New Moon", "Moon Phase: NEW (=)"},
        {{2026, 11, 17}, "First Quarter", "First Quarter", "Moon Phase(illum.): 50.22 % (>)"},
        {{2026, 11, 24}, "Full Moon", "Full Moon", "Moon Phase: FULL (=)"},
        {{2027, 2, 20}, "Full Moon", "Full Moon", "Moon Phase: FULL (=)"}, // still in the waxing half
        {{2027, 1, 29}, "Last Quarter", "Last Quarter", "Moon Phase(illum.): 49.70 % (<)"}};
    for (const auto& [date, window, dayTip, trayTip] : rows) {
        const DateValue noon = base::dateValueOf(date, {12, 0, 0});
        EXPECT_EQ(details(noon).labelResum, window);
        EXPECT_EQ(drawDateMoon(engine, date).tip, dayTip);
        EXPECT_EQ(lunatip(engine, noon), trayTip);
    }
    EXPECT_EQ(drawDateMoon(engine, {2026, 11, 15}).pictureName, "moon6.gif");
    EXPECT_EQ(drawDayMoon(engine, november2026), "moon6.gif");
}

// The half angle decides which way the Moon goes, the fraction what is said: the corners where both part company.
TEST_F(MoonTextsTest, SummariesAtTheCorners) {
    const test::Table<std::int16_t, double, const char*, const char*> rows{
        {38, 0.31473, ": 31% from Full", ": 31.47% of Full"}, {90, 0.9931, ": 99% from Full", ": 99.31% of Full"},
        {80, 0.9961, ": 100% from Full", ": 99.61% of Full"}, {91, 0.9931, ": 1% from New", ": 1.00% of New"},
        {91, 0.9951, ": 100% from Full", "Full Moon"},        {170, 0.004, ": 100% from New", "New Moon"},
        {10, 0.004, ": 100% from New", "New Moon"},           {120, 0.7749, ": 23% from New", ": 23.00% of New"}};
    for (const auto& [halfAngle, fraction, text, dayTip] : rows) {
        const MoonSummary summary = moonPhaseText(engine, november2026, halfAngle, fraction);
        EXPECT_TRUE(summary.text.ends_with(text)) << summary.text;
        EXPECT_NE(summary.text.find(summary.moonPercentText + " from"), std::string::npos) << summary.moonPercentText;
        const std::string tip = moonDateTip(engine, november2026, halfAngle, fraction);
        EXPECT_TRUE(tip.ends_with(dayTip)) << tip;
    }
    EXPECT_EQ(moonPhaseText(engine, november2026, 120, 0.7749).h, 23) << "the half angle takes the percentage";
}

} // namespace
} // namespace velmoriax::sky
