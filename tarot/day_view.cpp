// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/day_view.h"

#include "base/date_text.h"
#include "base/number_text.h"
#include "base/text_lines.h"
#include "shell/options.h"

namespace velmoriax::tarot {

namespace {

constexpr std::string_view newDayTime = "0:00:01";
constexpr std::string_view hideTime = "0:00:30";
constexpr std::int16_t gaugeMinutes = 30;
constexpr std::int16_t skyMinutes = 60;
constexpr int daysOfWeek = 7;

/// The number counts from Sunday, and the name is looked up in a week that begins on Monday.
std::string_view weekdayNameOneDayLate(base::CivilDate date) {
    return base::weekdayName(base::weekdayOf(date) % daysOfWeek + 1);
}

bool countTo(std::int16_t limit, std::int16_t& count) {
    if (++count < limit) return false;
    count = 0;
    return true;
}

} // namespace

std::string cardOfDayDateLine(base::CivilDate today) {
    return base::longDateText(today) + " (" + std::string(base::weekdayRuler(base::weekdayOf(today))) + ")";
}

std::string chosenDateLine(base::CivilDate date) {
    return std::string(weekdayNameOneDayLate(date)) + " , " + std::string(base::monthNameEnglish(date.month)) + " " +
           std::to_string(date.day) + " of " + std::to_string(date.year);
}

MidnightStep midnightStep(std::string_view clockText, std::string_view muteCod, bool refreshingView) {
    const std::string_view time = base::trimmed(clockText);
    if (time == newDayTime && muteCod == shell::word::nomuted) return MidnightStep::showNewDay;
    if (time == hideTime && refreshingView) return MidnightStep::hideAgain;
    return MidnightStep::none;
}

MinuteWork minuteTick(std::int16_t& gaugeTicks, MinuteCounts& counts) {
    return {.gauge = countTo(gaugeMinutes, gaugeTicks),
            .moon = countTo(skyMinutes, counts.moonTicks),
            .sign = countTo(skyMinutes, counts.signTicks)};
}

} // namespace velmoriax::tarot
