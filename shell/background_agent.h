// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/date_value.h"

#include <cstdint>
#include <string>

/// What the hub keeps through all changes of module: clock and uptime texts, the time-out of the notification and the
/// schedule of the alerts.
namespace velmoriax::shell {

struct AgentState {
    std::string LblTime;   ///< time of day at the last tick
    std::string LblUptime; ///< uptime of the running day, as a time text
    std::string LblDias;   ///< whole days of uptime, such as "3d "

    base::DateValue upStart = 0; ///< start of the running stretch: a time of day, or 0 after midnight
    base::DateValue upAccum = 0; ///< time collected before the last midnight
    std::int16_t upDays = 0;

    std::int16_t notifTicks = 0; ///< seconds that the notification has been shown
    std::int16_t alertTicks = 0; ///< half-minutes since the last alert run
};

/// The process begins to count its uptime.
void startUptime(AgentState& agent, base::DateValue now);

/// One second of the hub. True when the notification has been shown for 30 seconds and is to slide down.
/// Days and collected time turn on texts with exact seconds: a tick that falls on another second loses the stretch of
/// that day, and nothing makes up for it. In the very tick of midnight the uptime is the text of a negative time.
bool timeUpTick(AgentState& agent, base::DateValue now, bool notifOpen);

/// Half a minute of the hub. True at every sixtieth: an alert run is due.
bool timerBioTick(AgentState& agent);

} // namespace velmoriax::shell
