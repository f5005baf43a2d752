// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "biorhythm/bio_state.h"
#include "shell/average_gauge.h"

#include <string>

/// The arithmetic of the four cycles: from a birth, a date of reading and the clock to ages, sines, average and rating.
/// Nothing is checked here: a birth after the reading has a negative age, and the sines are those of that age.
namespace velmoriax::biorhythm {

/// Two times 3.14159, and not two pi: the percentages that users know are computed with it. The difference grows with
/// the age and can be seen after a few thousand days.
inline constexpr double fullTurn = 6.28318;
inline constexpr double oneHour = 1.0 / 24.0; ///< in days

/// The age at one moment.
struct Lived {
    std::int32_t wholeDays;          ///< calendar days from birth to reading, less one: -1 on the day of birth
    std::int16_t minutesLeftAtBirth; ///< 1440 less the minute of birth; the day of birth counts with these
    float livedAtMidnight;           ///< days
    float lived;                     ///< days; seconds do not enter
};

/// The age on the date of reading at the clock's hour and minute, also when the reading is not today. It is rounded to
/// 32 bits twice, so that above 16384 days it changes in steps of 2.8 minutes, and the printed percentages with it.
Lived livedOf(const base::CivilMoment& birth, base::CivilDate reading, base::CivilTime clock);

/// Fills the two date texts, `wholeDays`, `minutesLeftAtBirth`, `livedAtMidnight` and `lived`.
void computeLived(BioState& state, const base::CivilMoment& birth, base::CivilDate reading, base::CivilTime clock);

/// Fills `cycle` and `cycleNext` from `lived`.
void computeCycles(BioState& state);

/// The sine of a cycle of `period` days at the age `t` in days, in full precision; 0 at the age 0.
double sineAt(double t, int period);

/// The same as the cycle's 32-bit value.
float computeCycleAt(double t, int period);

/// The four sines at the age `t` in days.
CycleValues cyclesAt(double t);

/// Fills `averageText` and `ratingText` from `cycle`. All four cycles have the same weight.
void computeAverage(BioState& state);

/// Average and rating in one line: "-39.20% (negative: bad day)".
std::string averageLine(const BioState& state);

/// The sum of the four values in their order, divided by 4.
double meanOf(const CycleValues& values);

/// A sine as a percentage from -100 to 100 with two decimals, such as "-97.53".
std::string percentText(float sine);

/// Compares a value with the value an hour later.
shell::Trend trendOf(float now, float next);

} // namespace velmoriax::biorhythm
