// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sky/julian_day.h"

#include <array>
#include <cstdint>

/// The instants of the Moon's principal phases after J. Meeus, Astronomical Algorithms, first edition,
/// chapter 47, "Phases of the Moon". Two details are this program's own: angles are folded by `truncatedModulo`,
/// and the argument of latitude lacks its usual quadratic term. Between 1700 and 2300 they move most phases by seconds,
/// and one in some hundreds by up to a quarter of an hour. The instants are in the series' own time scale, which is
/// shown as universal time without a correction: about a minute late today, more in other centuries.
namespace velmoriax::sky {

enum class MoonPhase : std::int16_t { newMoon = 0, firstQuarter = 1, fullMoon = 2, lastQuarter = 3 };

/// The values that one phase is worked out with: angles in radians after folding.
struct PhaseValues {
    JulianDay JDE = 0;          ///< the running Julian Ephemeris Day
    double E = 0;               ///< eccentricity factor
    double M = 0;               ///< Sun's mean anomaly
    double Mp = 0;              ///< Moon's mean anomaly
    double F = 0;               ///< argument of latitude
    double Om = 0;              ///< longitude of the ascending node
    double W = 0;               ///< quarter correction, days
    std::array<double, 15> A{}; ///< planetary arguments 1 to 14
};

/// The remainder of x by y with the sign of x, after x has been rounded: half a unit below a multiple of y it folds to
/// a small value of the wrong side, so that 359.7 by 360 is 0.3. The phase instants rest on it.
double truncatedModulo(double x, double y);

/// Degrees folded by `truncatedModulo` to one turn, in radians.
double normalizedRadians(double degrees);

/// Adds the periodic terms of a phase to `JDE`. A phase outside the four gets the planetary terms alone.
void applyPhaseTerms(MoonPhase phase, PhaseValues& values);

/// The instant of a phase of a lunation. Lunation 953 begins with the new moon of January 6, 2000.
JulianDay moonPhaseJulianDay(std::int32_t lunation, MoonPhase phase);

} // namespace velmoriax::sky
