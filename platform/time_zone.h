// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velmoriax::platform {

/// The zone of the desktop at one moment. A zone without daylight saving time is always `standard`.
struct ZoneInfo {
    enum class State { unknown, standard, daylight };
    State state = State::unknown;
    int bias = 0;         ///< minutes from local standard time to universal time: 300 for New York
    int daylightBias = 0; ///< minutes added to `bias` during daylight saving time: usually -60
};

/// The time zone that the desktop is set to.
class TimeZone {
public:
    virtual ~TimeZone() = default;

    /// The zone as it is now: a change of zone or of daylight saving while the program runs is seen at the next call.
    virtual ZoneInfo current() const = 0;
};

} // namespace velmoriax::platform
