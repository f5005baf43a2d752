// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/date_value.h"

/// The illuminated part of the Moon's disk, by the method of P. Duffett-Smith, Practical Astronomy with Your
/// Calculator, from the epoch 1980 January 0.0. It is independent of the series of the phases: every percentage is
/// computed here and every date of a phase there, and at the exact phases the two may disagree a little. Good to about
/// one per cent within a century or two of the epoch.
namespace velmoriax::sky {

double degreesToRadians(double degrees);
double radiansToDegrees(double radians);

/// The angle brought into 0 to 360 degrees.
double fixAngle(double degrees);

/// The eccentric anomaly in radians of a mean anomaly in degrees, to better than 1e-6; for eccentricities well below 1.
double keplerEccentricAnomaly(double meanAnomaly, double eccentricity);

/// The light of the Moon at one moment.
struct MoonLight {
    double moonAgeDegrees;          ///< longitude of the Moon less that of the Sun, not folded
    double moonIlluminatedFraction; ///< 0 at new moon to 1 at full moon
};

/// The light at a moment in universal time.
MoonLight moonIllumination(base::DateValue date);

} // namespace velmoriax::sky
