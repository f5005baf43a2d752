// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/compatibility.h"

#include "biorhythm/cycle_engine.h"

#include <gtest/gtest.h>

namespace velmoriax::biorhythm {

TEST(Compatibility, ComparesBirthsForGood) {
    Compatibility record;
    const CompatibilityLabels labels = showGeneral(record, {1980, 3, 15}, {1980, 1, 1});
    EXPECT_EQ(labels.cycles[physical], "Physical: 56.52 %");
    EXPECT_EQ(labels.cycles[emotional], "Emotional: 28.57 %");
    EXPECT_EQ(labels.cycles[intuition], "Intuition: 89.47 %");
    EXPECT_EQ(labels.mean, "Mean (Physi + Emo + Intell + Intui): 56.52 % (little affinity)");
    EXPECT_EQ(showGeneral(record, {1980, 1, 1}, {1980, 3, 15}).mean, labels.mean) << "the order does not matter";
    EXPECT_EQ(showGeneral(record, {1980, 1, 1}, {1980, 1, 1}).mean,
              "Mean (Physi + Emo + Intell + Intui): 100.00 % (excellent attuned)");
    EXPECT_EQ(showGeneral(record, {1980, 1, 1}, {1980, 1, 12}).cycles[physical], "Physical: 4.35 %")
        << "an odd period has no exact half";
    const base::CivilDate farAway = base::civilDateOfDay(base::dayNumber({1900, 1, 1}) + 23 * 1748);
    EXPECT_EQ(showGeneral(record, {1900, 1, 1}, farAway).cycles[physical], "Physical: 100.00 %") << "beyond 16 bits";
}

TEST(Compatibility, AveragesThePresentValues) {
    const base::CivilMoment birth{{1980, 3, 15}, {7, 45, 0}};
    SecondProfile second{"Ann's twin", false, birth.date, birth.time, 0};
    Compatibility record;
    takeMainCycles(record, cyclesAt(livedOf(birth, {2026, 6, 20}, {18, 30, 0}).lived));
    CompatibilityLabels labels = showActual(record, second, {2026, 6, 20}, {18, 30, 0});
    EXPECT_EQ(labels.cycles[intellectual], "Intellectual: 72.36 %") << "of a sine of 0.4471822, twice";
    EXPECT_EQ(labels.cycles[emotional], "Emotional: 45.13 %");
    EXPECT_EQ(record.levelWord, "few affinity") << labels.mean;
    record.mainPercent.fill(50);
    second.secondTime = {18, 30, 0};
    labels = showActual(record, second, birth.date, {18, 30, 0});
    EXPECT_EQ(labels.cycles[physical], "Physical: 50 %") << "no decimals that the number does not have";
    EXPECT_EQ(labels.mean, "Mean (Physi + Emo + Intell + Intui): 50.00 % (little affinity)");
}

TEST(Compatibility, NamesTheLevelByItsLowerBound) {
    struct Row {
        float mean;
        const char* word;
    };
    const Row rows[] = {{0, "practically nothing"}, {20, "few affinity"},       {40, "little affinity"},
                        {60, "much affinity"},      {79.996F, "much affinity"}, {80, "excellent attuned"},
                        {100, "excellent attuned"}, {100.1F, "as before"}};
    for (const Row& row : rows) {
        Compatibility record;
        record.levelWord = "as before";
        record.meanPercent = row.mean;
        Niveles(record);
        EXPECT_EQ(record.levelWord, row.word) << row.mean;
    }
}

TEST(Compatibility, HeadsItsTabs) {
    EXPECT_EQ(actualHeading("Ann", "Bea", {1980, 3, 5}, {8, 5, 0}),
              "Complementarity between Ann and Bea for the day March/5/1980 8:05:00 (0-100 %):");
    EXPECT_EQ(generalHeading("Ann", "Bea"), "Affinity between Ann and Bea forever (0-100 %):");
}

} // namespace velmoriax::biorhythm
