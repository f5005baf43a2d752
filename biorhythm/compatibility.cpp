// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/compatibility.h"

#include "base/date_text.h"
#include "base/number_text.h"
#include "biorhythm/cycle_engine.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace velmoriax::biorhythm {

namespace {

constexpr std::string_view meanWord = "Mean (Physi + Emo + Intell + Intui):";

/// "few" stands below "little" here: these are the words that users of the affinity know.
struct Level {
    float from;
    float to;
    bool toIncluded;
    std::string_view word;

    bool holds(float mean) const { return mean >= from && (mean < to || (toIncluded && mean == to)); }
};
constexpr std::array<Level, 5> levels{{
    {0, 20, false, "practically nothing"},
    {20, 40, false, "few affinity"},
    {40, 60, false, "little affinity"},
    {60, 80, false, "much affinity"},
    {80, 100, true, "excellent attuned"},
}};

std::string twoDecimals(float value) {
    return base::formatFixed(value, 2);
}

float actualOf(float main, float second) {
    const auto mean = static_cast<float>((static_cast<double>(main) + second) / 2);
    return static_cast<float>(base::leadingNumber(twoDecimals(mean)));
}

/// The distance is held in a number wide enough for births more than 89 years apart.
float generalOf(std::int32_t distance, int period) {
    return static_cast<float>(std::abs(distance % period - period / 2.0) * (200.0 / period));
}

CompatibilityLabels labelsOf(Compatibility& record, const CycleValues& percent, std::string (*text)(float)) {
    record.meanPercent = static_cast<float>(meanOf(percent));
    Niveles(record);
    CompatibilityLabels labels;
    for (std::size_t i = 0; i < cycleCount; ++i)
        labels.cycles[i] = std::string(cycleTable[i].name) + ": " + text(percent[i]) + " %";
    labels.mean = std::string(meanWord) + " " + twoDecimals(record.meanPercent) + " % (" + record.levelWord + ")";
    return labels;
}

} // namespace

CompatibilityLabels firstCompatibilityLabels() {
    CompatibilityLabels labels;
    for (std::size_t i = 0; i < cycleCount; ++i) labels.cycles[i] = std::string(cycleTable[i].name) + ":";
    labels.mean = meanWord;
    return labels;
}

double onPercentScale(double sine) {
    return (sine * 100) / 2 + 50;
}

void takeMainCycles(Compatibility& record, const CycleValues& cycle) {
    for (std::size_t i = 0; i < cycleCount; ++i) record.mainPercent[i] = static_cast<float>(onPercentScale(cycle[i]));
}

void Niveles(Compatibility& record) {
    const auto* level = std::ranges::find_if(levels, [&](const Level& row) { return row.holds(record.meanPercent); });
    if (level != levels.end()) record.levelWord = level->word;
}

CompatibilityLabels showActual(Compatibility& record, SecondProfile& second, base::CivilDate reading,
                               base::CivilTime clock) {
    computeSecondLived(second, reading, clock);
    for (std::size_t i = 0; i < cycleCount; ++i) {
        record.secondPercent[i] = static_cast<float>(onPercentScale(sineAt(second.secondLived, cycleTable[i].period)));
        record.actualPercent[i] = actualOf(record.mainPercent[i], record.secondPercent[i]);
    }
    return labelsOf(record, record.actualPercent, base::plainNumberText);
}

CompatibilityLabels showGeneral(Compatibility& record, base::CivilDate mainBirth, base::CivilDate secondBirth) {
    const std::int32_t distance = std::abs(base::daysBetween(mainBirth, secondBirth));
    for (std::size_t i = 0; i < cycleCount; ++i) record.generalPercent[i] = generalOf(distance, cycleTable[i].period);
    return labelsOf(record, record.generalPercent, twoDecimals);
}

std::string actualHeading(std::string_view mainName, std::string_view secondName, base::CivilDate reading,
                          base::CivilTime clock) {
    std::string heading = "Complementarity between ";
    heading.append(mainName).append(" and ").append(secondName).append(" for the day ");
    heading.append(base::monthNameEnglish(reading.month)).append("/");
    heading += std::to_string(reading.day) + "/" + std::to_string(reading.year) + " " + base::timeText(clock);
    return heading + " (0-100 %):";
}

std::string generalHeading(std::string_view mainName, std::string_view secondName) {
    std::string heading = "Affinity between ";
    return heading.append(mainName).append(" and ").append(secondName).append(" forever (0-100 %):");
}

} // namespace velmoriax::biorhythm
