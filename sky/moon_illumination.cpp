// SPDX-License-Identifier: GPL-3.0-or-later
#include "sky/moon_illumination.h"

#include "sky/julian_day.h"

#include <cmath>

namespace velmoriax::sky {

namespace {

constexpr double pi = 3.14159265358979;
constexpr JulianDay epoch = 2444238.5; ///< 1980 January 0.0
constexpr double tropicalYear = 365.2422;
constexpr double keplerTolerance = 1e-6;

// Duffett-Smith's elements of the orbits of Sun and Moon at the epoch 1980 January 0.0: angles in degrees, rates in
// degrees a day. The corrections of the Moon's longitude below have his coefficients too.
constexpr double sunLongitude = 278.83354;
constexpr double sunPerigee = 282.596403;
constexpr double earthEccentricity = 0.016718;
constexpr double moonLongitude = 64.975464;
constexpr double moonPerigee = 349.383063;
constexpr double moonLongitudeRate = 13.1763966;
constexpr double moonPerigeeRate = 0.1114041;

double sine(double degrees) {
    return std::sin(degreesToRadians(degrees));
}

double sunMeanAnomaly(double day) {
    return fixAngle(fixAngle(360 / tropicalYear * day) + sunLongitude - sunPerigee);
}

double sunEclipticLongitude(double meanAnomaly) {
    const double eccentric = keplerEccentricAnomaly(meanAnomaly, earthEccentricity);
    const double halfTrueAnomaly =
        std::atan(std::sqrt((1 + earthEccentricity) / (1 - earthEccentricity)) * std::tan(eccentric / 2));
    return fixAngle(2 * radiansToDegrees(halfTrueAnomaly) + sunPerigee);
}

/// The Moon's true longitude, not folded; the amplitudes are the book's, in degrees.
double moonTrueLongitude(double day, double sunAnomaly, double sunTrueLongitude) {
    const double mean = fixAngle(moonLongitudeRate * day + moonLongitude);
    const double meanAnomaly = fixAngle(mean - moonPerigeeRate * day - moonPerigee);
    const double evection = 1.2739 * sine(2 * (mean - sunTrueLongitude) - meanAnomaly);
    const double annualEquation = 0.1858 * sine(sunAnomaly);
    const double thirdCorrection = 0.37 * sine(sunAnomaly);
    const double anomaly = meanAnomaly + evection - annualEquation - thirdCorrection;
    const double equationOfCentre = 6.2886 * sine(anomaly);
    const double fourthCorrection = 0.214 * sine(2 * anomaly);
    const double longitude = mean + evection + equationOfCentre - annualEquation + fourthCorrection;
    return longitude + 0.6583 * sine(2 * (longitude - sunTrueLongitude));
}

} // namespace

double degreesToRadians(double degrees) {
    return degrees * (pi / 180);
}

double radiansToDegrees(double radians) {
    return radians * (180 / pi);
}

double fixAngle(double degrees) {
    return degrees - 360 * std::floor(degrees / 360);
}

double keplerEccentricAnomaly(double meanAnomaly, double eccentricity) {
    const double mean = degreesToRadians(meanAnomaly);
    double eccentric = mean;
    double delta = 0;
    do {
        delta = eccentric - eccentricity * std::sin(eccentric) - mean;
        eccentric -= delta / (1 - eccentricity * std::cos(eccentric));
    } while (std::abs(delta) > keplerTolerance);
    return eccentric;
}

MoonLight moonIllumination(base::DateValue date) {
    const double day = julianDayFromDate(date) - epoch;
    const double sunAnomaly = sunMeanAnomaly(day);
    const double sun = sunEclipticLongitude(sunAnomaly);
    const double age = moonTrueLongitude(day, sunAnomaly, sun) - sun;
    return {age, (1 - std::cos(degreesToRadians(age))) / 2};
}

} // namespace velmoriax::sky
