// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/cycle_engine.h"

#include "base/number_text.h"
#include "base/rounding.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

namespace velmoriax::biorhythm {

namespace {

constexpr int minutesOfDay = 1440;

int minuteOfDay(base::CivilTime time) {
    return time.hour * 60 + time.minute;
}

/// The upper bounds of the best three bands belong to them, those of the others do not: 60 is still "very good", but 40
/// is "very good" already.
struct RatingBand {
    double from; ///< included
    double to;
    bool toIncluded;
    std::string_view words;

    bool holds(double average) const { return average >= from && (average < to || (toIncluded && average == to)); }
};
constexpr std::array<RatingBand, 10> ratingBands{{
    {-100, -80, false, "(negative: dreadful day)"},
    {-80, -60, false, "(negative: super bad day)"},
    {-60, -40, false, "(negative: very bad day)"},
    {-40, -20, false, "(negative: bad day)"},
    {-20, 0, false, "(negative: regular or critical day)"},
    {0, 20, false, "(positive: regular or critical day)"},
    {20, 40, false, "(positive: good day)"},
    {40, 60, true, "(positive: very good day)"},
    {60, 80, true, "(positive: super good day)"},
    {80, 100, true, "(positive: excellent day)"},
}};

} // namespace

Lived livedOf(const base::CivilMoment& birth, base::CivilDate reading, base::CivilTime clock) {
    Lived age{};
    age.wholeDays = base::daysBetween(birth.date, reading) - 1;
    age.minutesLeftAtBirth = base::toInt16(minutesOfDay - minuteOfDay(birth.time));
    age.livedAtMidnight = static_cast<float>(age.minutesLeftAtBirth / 1440.0 + age.wholeDays);
    age.lived = static_cast<float>(minuteOfDay(clock) / 1440.0 + age.livedAtMidnight);
    return age;
}

void computeLived(BioState& state, const base::CivilMoment& birth, base::CivilDate reading, base::CivilTime clock) {
    state.birthDateText = dayMonthYearText(birth.date);
    state.readingDateText = dayMonthYearText(reading);
    const Lived age = livedOf(birth, reading, clock);
    state.wholeDays = age.wholeDays;
    state.minutesLeftAtBirth = age.minutesLeftAtBirth;
    state.livedAtMidnight = age.livedAtMidnight;
    state.lived = age.lived;
}

void computeCycles(BioState& state) {
    const double t = state.lived;
    state.cycle = cyclesAt(t);
    state.cycleNext = cyclesAt(t + oneHour);
}

double sineAt(double t, int period) {
    return std::sin(t * fullTurn / period);
}

float computeCycleAt(double t, int period) {
    return static_cast<float>(sineAt(t, period));
}

CycleValues cyclesAt(double t) {
    CycleValues values{};
    for (std::size_t i = 0; i < cycleCount; ++i) values[i] = computeCycleAt(t, cycleTable[i].period);
    return values;
}

void computeAverage(BioState& state) {
    state.averageText = base::formatFixed(static_cast<float>(meanOf(state.cycle) * 100), 2);
    // The printed value is rated, not the raw one, so that the words always fit the number beside them.
    const double printed = base::leadingNumber(state.averageText);
    const auto* band = std::ranges::find_if(ratingBands, [&](const RatingBand& row) { return row.holds(printed); });
    if (band != ratingBands.end()) state.ratingText = band->words;
}

std::string averageLine(const BioState& state) {
    return state.averageText + "% " + state.ratingText;
}

double meanOf(const CycleValues& values) {
    double sum = 0;
    for (const float value : values) sum += value;
    return sum / static_cast<double>(cycleCount);
}

std::string percentText(float sine) {
    return base::formatFixed(sine * 100.0F, 2);
}

shell::Trend trendOf(float now, float next) {
    if (next > now) return shell::Trend::rising;
    return next < now ? shell::Trend::falling : shell::Trend::level;
}

} // namespace velmoriax::biorhythm
