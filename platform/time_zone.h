// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velmoriax::platform {

/// What the desktop says of its zone at this moment. A zone without daylight saving time answers `standard`.
struct ZoneInfo {
    enum class State { unknown, standard, daylight };
    State state = State::unknown;
    int bias = 0;         ///< minutes from local standard time to universal time: 300 for New York
    int daylightBias = 0; ///< minutes added to `bias` while daylight saving time holds: usually -60
};

class TimeZone {
public:
    virtual ~TimeZone() = default;

    /// The zone as it is now: a change of zone or of daylight saving while the program runs is seen at the next call.
    virtual ZoneInfo current() const = 0;
};

} // namespace velmoriax::platform
