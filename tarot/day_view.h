// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/date_value.h"

#include <cstdint>
#include <string>
#include <string_view>

/// What the two windows of a day's card say of the date, and when the card of today turns to something else.
namespace velmoriax::tarot {

/// The date with its planet, such as "Sunday, November 15, 2026 (The Sun)".
std::string cardOfDayDateLine(base::CivilDate today);

/// The date line of Another Day, such as "Monday , November 15 of 2026" for a Sunday: the weekday is that of the next
/// day.
std::string chosenDateLine(base::CivilDate date);

/// What a second of the clock brings to the window of today's card.
enum class MidnightStep {
    none,
    showNewDay, ///< one second after midnight, unless it is muted
    hideAgain   ///< half a minute after midnight, when the new day has been shown
};

/// Decided by the text of the clock alone: a tick that misses the second misses the step.
MidnightStep midnightStep(std::string_view clockText, std::string_view muteCod, bool refreshingView);

/// Minutes since the parts of the window were last drawn anew.
struct MinuteCounts {
    std::int16_t moonTicks = 0;
    std::int16_t signTicks = 0;
};

/// Which parts are due.
struct MinuteWork {
    bool gauge = false;
    bool moon = false;
    bool sign = false;
    bool operator==(const MinuteWork&) const = default;
};

/// A minute of the window: every thirtieth draws the gauge, every sixtieth moon and sign. `gaugeTicks` outlives the
/// window, so that a gauge drawn at the load of a new one may be due again sooner.
MinuteWork minuteTick(std::int16_t& gaugeTicks, MinuteCounts& counts);

} // namespace velmoriax::tarot
