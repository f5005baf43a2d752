// SPDX-License-Identifier: GPL-3.0-or-later
#include "sky/moon_engine.h"

#include "base/rounding.h"

#include <array>

namespace velmoriax::sky {

namespace {

constexpr double meanLunation = 29.530589;                 ///< days
constexpr base::DateValue lunationZero = 8388.51399305556; ///< about the new moon of lunation 0, in December 1922
constexpr double halfSecond = 1.158e-5 / 2;                ///< days

struct NameSince {
    MoonPhase phase; ///< the name holds from this phase of the lunation on
    std::string_view name;
};

/// From the end of the lunation to its beginning. The spelling "Wanning" is intended.
constexpr std::array<NameSince, 3> namesSince{{
    {MoonPhase::lastQuarter, "Wanning Crescent"},
    {MoonPhase::fullMoon, "Waning Gibbous"},
    {MoonPhase::firstQuarter, "Waxing Gibbous"},
}};

} // namespace

bool isMoonDateValid(base::DateValue date) {
    const bool outside = date <= -657418.176956019 || date > 2958465.99999 || date == -657418;
    const bool inReform = date > -115869 && date <= -115859.99999;
    return !outside && !inReform;
}

std::int32_t MoonEngine::lunationOfDate(base::DateValue date) const {
    std::int32_t lunation = base::nearestInt32(base::nearest(date - lunationZero) / meanLunation);
    const JulianDay target = julianDayFromDate(date) + halfSecond;
    // Both comparisons are strict, so a target that equals the next new moon to the last bit would repeat a round for
    // ever. That cannot happen: wherever a target is the instant of a new moon, in all the years of the calendar, the
    // estimate is already the lunation that begins there.
    while (true) {
        events_.processEvents();
        const JulianDay begin = moonPhaseJulianDay(lunation, MoonPhase::newMoon);
        const JulianDay end = moonPhaseJulianDay(lunation + 1, MoonPhase::newMoon);
        if (begin <= target && end > target) return lunation;
        if (begin > target)
            --lunation;
        else if (end < target)
            ++lunation;
    }
}

double MoonEngine::moonAgeDays(base::DateValue date) const {
    return julianDayFromDate(date) - moonPhaseJulianDay(lunationOfDate(date), MoonPhase::newMoon);
}

float MoonEngine::moonPhaseAngle(base::DateValue date) const {
    return static_cast<float>(moonAgeDays(date) * 360 / meanLunation);
}

std::string_view MoonEngine::moonPhaseName(base::DateValue date) const {
    if (!isMoonDateValid(date)) return {};
    for (const NameSince& since : namesSince)
        if (!base::isBefore(date, phaseOfLunation(date, since.phase))) return since.name;
    return "Waxing Crescent";
}

base::DateValue MoonEngine::previousNewMoon(base::DateValue date) const {
    return phaseOfLunation(date, MoonPhase::newMoon);
}

base::DateValue MoonEngine::phaseOfLunation(base::DateValue date, MoonPhase phase, std::int32_t shift) const {
    return dateFromJulianDay(moonPhaseJulianDay(lunationOfDate(date) + shift, phase));
}

base::DateValue MoonEngine::next(base::DateValue date, MoonPhase phase) const {
    const base::DateValue own = phaseOfLunation(date, phase);
    return base::isBefore(date, own) ? own : phaseOfLunation(date, phase, 1);
}

base::DateValue MoonEngine::previous(base::DateValue date, MoonPhase phase) const {
    const base::DateValue own = phaseOfLunation(date, phase);
    return base::isBefore(own, date) ? own : phaseOfLunation(date, phase, -1);
}

} // namespace velmoriax::sky
