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

/// "few" is less than "little" here: these are the words that users know.
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

/// `distance` in days. In 16 bits it would overflow for births more than 89 years apart.
float generalOf(std::int32_t distance, int period) {
    return static_cast<float>(std::abs(distance % period - period / 2.0) * (200.0 / period));
}

CompatibilityLabels labelsOf(Compatibility& result, const CycleValues& percent, std::string (*text)(float)) {
    result.meanPercent = static_cast<float>(meanOf(percent));
    Niveles(result);
    CompatibilityLabels labels;
    for (std::size_t i = 0; i < cycleCount; ++i)
        labels.cycles[i] = std::string(cycleTable[i].name) + ": " + text(percent[i]) + " %";
    labels.mean = std::string(meanWord) + " " + twoDecimals(result.meanPercent) + " % (" + result.levelWord + ")";
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

void takeMainCycles(Compatibility& result, const CycleValues& cycle) {
    for (std::size_t i = 0; i < cycleCount; ++i) result.mainPercent[i] = static_cast<float>(onPercentScale(cycle[i]));
}

void Niveles(Compatibility& result) {
    const auto* level = std::ranges::find_if(levels, [&](const Level& row) { return row.holds(result.meanPercent); });
    if (level != levels.end()) result.levelWord = level->word;
}

CompatibilityLabels showActual(Compatibility& result, SecondProfile& second, base::CivilDate reading,
                               base::CivilTime clock) {
    computeSecondLived(second, reading, clock);
    for (std::size_t i = 0; i < cycleCount; ++i) {
        result.secondPercent[i] = static_cast<float>(onPercentScale(sineAt(second.secondLived, cycleTable[i].period)));
        result.actualPercent[i] = actualOf(result.mainPercent[i], result.secondPercent[i]);
    }
    return labelsOf(result, result.actualPercent, base::plainNumberText);
}

CompatibilityLabels showGeneral(Compatibility& result, base::CivilDate mainBirth, base::CivilDate secondBirth) {
    const std::int32_t distance = std::abs(base::daysBetween(mainBirth, secondBirth));
    for (std::size_t i = 0; i < cycleCount; ++i) result.generalPercent[i] = generalOf(distance, cycleTable[i].period);
    return labelsOf(result, result.generalPercent, twoDecimals);
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
