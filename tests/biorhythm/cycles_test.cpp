// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/bio_gauge.h"
#include "biorhythm/compatibility.h"
#include "biorhythm/cycle_engine.h"
#include "support/helpers.h"

namespace velmoriax::biorhythm {
namespace {

BioState computed(const base::CivilMoment& birth, base::CivilDate reading, base::CivilTime clock) {
    BioState state;
    computeLived(state, birth, reading, clock);
    computeCycles(state);
    computeAverage(state);
    return state;
}

TEST(CycleEngine, ComputesAKnownLifeToTheLastBit) {
    const BioState state = computed({{1980, 3, 15}, {7, 45, 0}}, {2026, 6, 20}, {18, 30, 59});
    EXPECT_EQ(state.wholeDays, 16897);
    EXPECT_EQ(state.minutesLeftAtBirth, 975);
    EXPECT_EQ(state.livedAtMidnight, 16897.677734375F);
    EXPECT_EQ(state.lived, 16898.44921875F) << "rounded to 32 bits twice, without the seconds";
    EXPECT_FLOAT_EQ(state.cycle[physical], -0.9753139F);
    EXPECT_FLOAT_EQ(state.cycle[emotional], -0.0974466F);
    EXPECT_FLOAT_EQ(state.cycleNext[emotional], -0.1067477F);
    EXPECT_FLOAT_EQ(state.cycle[intellectual], 0.4471822F);
    EXPECT_FLOAT_EQ(state.cycle[intuition], -0.9422699F);
    EXPECT_EQ(averageLine(state), "-39.20% (negative: bad day)");
}

TEST(CycleEngine, CountsTheDayOfBirthByItsMinutes) {
    const base::CivilMoment noon{{2000, 2, 28}, {12, 0, 0}};
    const BioState atBirth = computed(noon, noon.date, noon.time);
    EXPECT_EQ(atBirth.wholeDays, -1);
    EXPECT_EQ(atBirth.livedAtMidnight, -0.5F);
    EXPECT_EQ(atBirth.lived, 0.0F);
    EXPECT_EQ(averageLine(atBirth), "0.00% (positive: regular or critical day)");
    EXPECT_EQ(computed(noon, {2000, 3, 1}, noon.time).lived, 2.0F) << "2000 is a leap year of the true calendar";
    const BioState unborn = computed(noon, {2000, 2, 18}, noon.time);
    EXPECT_EQ(unborn.lived, -10.0F);
    EXPECT_EQ(unborn.cycle[physical], -computeCycleAt(10, 23));
}

TEST(CycleEngine, RatesThePrintedAverageByTheBandsAndTheirEdges) {
    const test::Table<double, const char*, const char*> rows{
        {-100, "(negative: dreadful day)", "the low end"},
        {-80.004, "(negative: super bad day)", "is printed as -80.00, the lower bound of the band"},
        {-20, "(negative: regular or critical day)", "lower bounds belong to their band"},
        {-0.004, "(positive: regular or critical day)", "is printed as 0.00"},
        {40, "(positive: very good day)", "an upper bound that its band excludes"},
        {60, "(positive: very good day)", "an upper bound that its band includes"},
        {100, "(positive: excellent day)", "the high end"},
        {130, "as before", "in no band: the words stay"},
    };
    for (const auto& [percent, words, why] : rows) {
        BioState state;
        state.ratingText = "as before";
        state.cycle.fill(static_cast<float>(percent / 100));
        computeAverage(state);
        EXPECT_EQ(state.ratingText, words) << percent << ": " << why;
    }
}

TEST(BioGauge, ShowsTheAverageOfTodayInFullPrecision) {
    BioState state;
    setBirthDate(state, {1980, 3, 15});
    setBirthTime(state, {7, 5, 0});
    const shell::AverageGauge bad = drawBioMedia(state, base::dateValueOf({2026, 6, 20}, {18, 30, 0}));
    EXPECT_EQ(bad.labelBioInfo, "Biorhythms: b.3/15/1980 7:05 (average)");
    EXPECT_NEAR(bad.value, -0.39, 0.01);
    EXPECT_EQ(bad.colour, pureRed);
    EXPECT_EQ(bad.trend, shell::Trend::falling);
    setBirthTime(state, {12, 0, 0});
    const shell::AverageGauge newborn = drawBioMedia(state, base::dateValueOf({1980, 3, 15}, {12, 0, 0}));
    EXPECT_EQ(newborn.value, 0.0F);
    EXPECT_EQ(newborn.colour, pureGreen) << "an average of zero is positive";
    EXPECT_EQ(newborn.trend, shell::Trend::rising);
    EXPECT_EQ(trendOf(0.5F, 0.5F), shell::Trend::level);
}

TEST(Compatibility, ComparesTheDaysBetweenTwoBirths) {
    Compatibility result;
    const CompatibilityLabels labels = showGeneral(result, {1980, 3, 15}, {1980, 1, 1});
    EXPECT_EQ(labels.cycles[physical], "Physical: 56.52 %");
    EXPECT_EQ(labels.cycles[emotional], "Emotional: 28.57 %");
    EXPECT_EQ(labels.cycles[intuition], "Intuition: 89.47 %");
    EXPECT_EQ(labels.mean, "Mean (Physi + Emo + Intell + Intui): 56.52 % (little affinity)");
    EXPECT_EQ(showGeneral(result, {1980, 1, 1}, {1980, 3, 15}).mean, labels.mean) << "the order does not matter";
    EXPECT_EQ(showGeneral(result, {1980, 1, 1}, {1980, 1, 1}).mean,
              "Mean (Physi + Emo + Intell + Intui): 100.00 % (excellent attuned)");
    EXPECT_EQ(showGeneral(result, {1980, 1, 1}, {1980, 1, 12}).cycles[physical], "Physical: 4.35 %")
        << "an odd period has no exact half";
    const base::CivilDate farAway = base::civilDateOfDay(base::dayNumber({1900, 1, 1}) + 23 * 1748);
    EXPECT_EQ(showGeneral(result, {1900, 1, 1}, farAway).cycles[physical], "Physical: 100.00 %") << "beyond 16 bits";
}

TEST(Compatibility, AveragesThePresentValues) {
    const base::CivilMoment birth{{1980, 3, 15}, {7, 45, 0}};
    SecondProfile second{.profileSecondName = "Ann's twin", .secondDate = birth.date, .secondTime = birth.time};
    Compatibility result;
    takeMainCycles(result, cyclesAt(livedOf(birth, {2026, 6, 20}, {18, 30, 0}).lived));
    CompatibilityLabels labels = showActual(result, second, {2026, 6, 20}, {18, 30, 0});
    EXPECT_EQ(labels.cycles[intellectual], "Intellectual: 72.36 %") << "of a sine of 0.4471822, twice";
    EXPECT_EQ(labels.cycles[emotional], "Emotional: 45.13 %");
    EXPECT_EQ(result.levelWord, "few affinity") << labels.mean;
    result.mainPercent.fill(50);
    second.secondTime = {18, 30, 0};
    labels = showActual(result, second, birth.date, {18, 30, 0});
    EXPECT_EQ(labels.cycles[physical], "Physical: 50 %") << "only the decimals that the number has";
    EXPECT_EQ(labels.mean, "Mean (Physi + Emo + Intell + Intui): 50.00 % (little affinity)");
}

TEST(Compatibility, NamesTheLevelByItsLowerBound) {
    const test::Table<float, const char*> rows{
        {0, "practically nothing"}, {20, "few affinity"},      {40, "little affinity"},    {60, "much affinity"},
        {79.996F, "much affinity"}, {80, "excellent attuned"}, {100, "excellent attuned"}, {100.1F, "as before"}};
    for (const auto& [mean, word] : rows) {
        Compatibility result;
        result.levelWord = "as before";
        result.meanPercent = mean;
        Niveles(result);
        EXPECT_EQ(result.levelWord, word) << mean;
    }
}

} // namespace
} // namespace velmoriax::biorhythm
