// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/background_agent.h"

#include "base/date_text.h"
#include "base/number_text.h"
#include "base/text_lines.h"

namespace velmoriax::shell {

namespace {

constexpr std::string_view lastSecondOfDay = "23:59:59";
constexpr std::string_view midnight = "0:00:00";
constexpr int notificationSeconds = 30;
constexpr int halfMinutesBetweenAlerts = 60;

base::DateValue timeOfDay(base::DateValue moment) {
    return base::dateValueOf(base::civilTimeOf(moment));
}

/// Counts the seconds of a notification that is shown; true at the thirtieth. Any other state starts again at 0.
bool notificationTimesOut(AgentState& agent, bool notifOpen) {
    if (notifOpen && ++agent.notifTicks != notificationSeconds) return false;
    agent.notifTicks = 0;
    return notifOpen;
}

} // namespace

void startUptime(AgentState& agent, base::DateValue now) {
    agent.upStart = timeOfDay(now);
    agent.upDays = 0;
}

bool timeUpTick(AgentState& agent, base::DateValue now, bool notifOpen) {
    const base::DateValue time = timeOfDay(now);
    agent.LblTime = base::timeText(time);
    agent.LblUptime = base::timeText(agent.upAccum + (time - agent.upStart));
    agent.LblDias = std::to_string(agent.upDays) + "d ";
    if (base::trimmed(agent.LblTime) == lastSecondOfDay) agent.upAccum += time - agent.upStart;
    if (base::trimmed(agent.LblTime) == midnight) agent.upStart = 0;
    if (base::trimmed(agent.LblUptime) == lastSecondOfDay) {
        ++agent.upDays;
        agent.upAccum = 0;
        agent.upStart = time;
    }
    return notificationTimesOut(agent, notifOpen);
}

bool timerBioTick(AgentState& agent) {
    if (++agent.alertTicks < halfMinutesBetweenAlerts) return false;
    agent.alertTicks = 0;
    return true;
}

} // namespace velmoriax::shell
