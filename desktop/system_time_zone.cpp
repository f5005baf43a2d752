// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/system_time_zone.h"

#include "desktop/local_fields.h"

#include <initializer_list>

namespace velmoriax::desktop {

namespace {

/// The zone's offset from universal time in seconds without daylight saving time: that of the nearest month before or
/// after an instant that has none; `fallback` when there is no such month within a year.
long standardOffset(std::time_t instant, long fallback) {
    constexpr std::time_t month = 30L * 86400;
    for (int distance = 1; distance <= 12; ++distance)
        for (const std::time_t sign : {-1, 1}) {
            std::tm fields{};
            if (localFields(instant + sign * distance * month, fields) && fields.tm_isdst == 0) return fields.tm_gmtoff;
        }
    return fallback;
}

} // namespace

platform::ZoneInfo SystemTimeZone::current() const {
    using State = platform::ZoneInfo::State;
    const std::time_t present = std::time(nullptr);
    std::tm fields{};
    if (!localFields(present, fields)) return {};
    const auto minutes = [](long seconds) { return static_cast<int>(seconds / 60); };
    if (fields.tm_isdst <= 0) return {State::standard, -minutes(fields.tm_gmtoff), 0};
    const long standard = standardOffset(present, fields.tm_gmtoff);
    return {State::daylight, -minutes(standard), -minutes(fields.tm_gmtoff - standard)};
}

} // namespace velmoriax::desktop
