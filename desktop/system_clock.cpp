// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/system_clock.h"

#include <algorithm>
#include <chrono>
#include <ctime>

namespace velmoriax::desktop {

namespace {

/// Calendar fields of an instant in the zone as it is set now: tzset notices a zone that has been changed meanwhile.
bool localFields(std::time_t instant, std::tm& fields) {
    ::tzset();
    return ::localtime_r(&instant, &fields) != nullptr;
}

/// The zone's offset without daylight saving, looked for in the months around an instant that has it.
long standardOffset(std::time_t instant, long fallback) {
    constexpr std::time_t month = 30L * 86400;
    for (int distance = 1; distance <= 12; ++distance)
        for (const int sign : {-1, 1}) {
            std::tm fields{};
            if (localFields(instant + sign * distance * month, fields) && fields.tm_isdst == 0) return fields.tm_gmtoff;
        }
    return fallback;
}

} // namespace

base::DateValue SystemClock::now() const {
    std::tm fields{};
    if (!localFields(std::time(nullptr), fields)) return 0;
    const base::CivilDate date{fields.tm_year + 1900, fields.tm_mon + 1, fields.tm_mday};
    // A leap second has no place in the time of day.
    return base::dateValueOf(date, {fields.tm_hour, fields.tm_min, std::min(fields.tm_sec, 59)});
}

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

void ClockRandom::seedFromClock() {
    const auto ticks = std::chrono::system_clock::now().time_since_epoch().count();
    engine_.seed(static_cast<std::minstd_rand::result_type>(ticks ^ (ticks >> 32)));
    engine_.discard(8);
}

float ClockRandom::uniform() {
    return std::uniform_real_distribution<float>(0.0F, 0.99999994F)(engine_);
}

} // namespace velmoriax::desktop
