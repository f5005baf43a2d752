// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/date_value.h"
#include "biorhythm/cycle_table.h"

#include <cstdint>
#include <string>

namespace velmoriax::biorhythm {

/// The record that the view, the tip, the gauge and the alerts share. It holds the results of the computation that ran
/// last, for whichever of them that was; each of the four computes before it reads. The widths of the numbers are those
/// of the arithmetic: they can be seen in the printed percentages.
struct BioState {
    /// The main profile's birth date. January 1, 1900 means that none is set.
    std::int16_t birthDay = 1;
    std::int16_t birthMonth = 1;
    std::int16_t birthYear = 1900;

    /// The time of birth stays at midnight until a window loads it: the background agent never reads it.
    std::int16_t birthHour = 0;
    std::int16_t birthMinute = 0;

    /// The target date of the remaining days.
    std::int16_t finalDay = 0;
    std::int16_t finalMonth = 0;
    std::int16_t finalYear = 0;
    std::string finalDateText; ///< day/month/year without leading zeros, as the two texts below; nothing reads it yet

    std::string birthDateText;   ///< day/month/year without leading zeros
    std::string readingDateText; ///< the date of reading, in the same form

    std::int32_t wholeDays = 0;          ///< days between the two dates, less one
    std::int16_t minutesLeftAtBirth = 0; ///< from the time of birth to the next midnight
    float livedAtMidnight = 0;           ///< age in days at the midnight that begins the date of reading
    float lived = 0;                     ///< age in days at the clock's hour and minute

    CycleValues cycle{};     ///< at `lived`
    CycleValues cycleNext{}; ///< an hour later

    std::string averageText; ///< in per cent, two decimals
    std::string ratingText;  ///< the words for the average
};

/// False for January 1, 1900.
bool birthDateIsSet(const BioState& state);

base::CivilMoment birthOf(const BioState& state);
base::CivilDate finalDateOf(const BioState& state);

void setBirthDate(BioState& state, base::CivilDate date);
void setBirthTime(BioState& state, base::CivilTime time);
void setFinalDate(BioState& state, base::CivilDate date);

/// Day, "/", month, "/", year, without leading zeros.
std::string dayMonthYearText(base::CivilDate date);

/// Hour, ":" and two-digit minute, such as 7:05.
std::string hourMinuteText(base::CivilTime time);

} // namespace velmoriax::biorhythm
