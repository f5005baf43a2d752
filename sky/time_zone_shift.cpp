// SPDX-License-Identifier: GPL-3.0-or-later
#include "sky/time_zone_shift.h"

#include <optional>

namespace velmoriax::sky {

namespace {

using State = platform::ZoneInfo::State;

/// Minutes from local to universal time; nothing when the zone is unknown.
std::optional<int> minutesToUniversal(const platform::TimeZone& zone) {
    const platform::ZoneInfo info = zone.current();
    if (info.state == State::unknown) return std::nullopt;
    return info.state == State::daylight ? info.bias + info.daylightBias : info.bias;
}

} // namespace

base::DateValue localToUniversal(base::DateValue local, const platform::TimeZone& zone) {
    const auto minutes = minutesToUniversal(zone);
    return minutes ? base::addMinutes(local, *minutes) : 0;
}

base::DateValue universalToLocal(base::CivilTime time, base::CivilDate day, const platform::TimeZone& zone) {
    const auto minutes = minutesToUniversal(zone);
    return minutes ? base::addMinutes(base::dateValueOf(day, time), -*minutes) : 0;
}

} // namespace velmoriax::sky
