// SPDX-License-Identifier: GPL-3.0-or-later
#include "sky/moon_illumination.h"
#include "sky/moon_pictures.h"
#include "sky/moon_texts.h"
#include "support/fakes.h"

namespace velmoriax::sky {
namespace {

using base::DateValue;

constexpr DateValue november2026 = 46341.5; ///< 2026-11-15 12:00

struct MoonTextsTest : testing::Test {
    test::FakeEvents events;
    MoonEngine engine{events};
    SkyState state;

    MoonDetails details(DateValue moment, bool showPrevious = false) {
        moonIllumination(moment, state);
        return refreshMoonDetails(engine, moment, showPrevious, state);
    }
};

TEST(MoonIllumination, GivesTheKnownValues) {
    SkyState state;
    for (const auto& [date, fraction, degrees] : test::Table<DateValue, double, double>{
             {november2026, 0.31473, 68.2517},
             {38518, 0.49458, 89.3792},
             {36526, 0.27140, -62.7933} /* negative: the two longitudes are folded apart */}) {
        moonIllumination(date, state);
        EXPECT_NEAR(state.moonIlluminatedFraction, fraction, 5e-6);
        EXPECT_NEAR(state.moonAgeDegrees, degrees, 5e-5);
    }
    moonIllumination(36531.7597222222, state);
    EXPECT_NEAR(state.moonIlluminatedFraction, 1.05e-6, 5e-9) << "seconds before a new moon";
}

// Two models without anything in common but the calendar.
TEST_F(MoonTextsTest, IlluminationAgreesWithThePhases) {
    for (DateValue date = november2026; date < november2026 + 4000; date += 29.7) {
        moonIllumination(engine.nextNewMoon(date), state);
        EXPECT_LT(state.moonIlluminatedFraction, 0.001) << date;
        moonIllumination(engine.nextFullMoon(date), state);
        EXPECT_GT(state.moonIlluminatedFraction, 0.999) << date;
        moonIllumination(engine.nextLastQuarter(date), state);
        EXPECT_NEAR(state.moonIlluminatedFraction, 0.5, 0.01) << date;
    }
}

TEST_F(MoonTextsTest, WindowTellsTheMomentAndThePhasesToComeOrBeforeYesterday) {
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
        EXPECT_EQ(drawDateMoon(engine, date, state).tip, dayTip);
        EXPECT_EQ(lunatip(engine, noon, state), trayTip);
    }
    EXPECT_EQ(drawDateMoon(engine, {2026, 11, 15}, state).pictureName, "moon6.gif");
    EXPECT_EQ(drawDayMoon(engine, november2026, state), "moon6.gif");
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
