// SPDX-License-Identifier: GPL-3.0-or-later
#include "sky/moon_phase_series.h"

#include "base/rounding.h"
#include "sky/moon_phase_terms.h"

#include <cmath>

namespace velmoriax::sky {

namespace {

constexpr double radiansOfDegree = 0.0174532925199433;
constexpr std::int32_t epochLunation = 953;
constexpr double lunationsOfCentury = 1236.85;

/// The mean values of a phase by the polynomials of the same chapter, k lunations after the epoch, with all angles
/// folded.
PhaseValues meanValues(double k) {
    const double T = k / lunationsOfCentury;
    const double T2 = T * T;
    PhaseValues v;
    v.JDE = 2451550.09765 + 29.530588853 * k + ((7.3e-10 * T - 1.5e-7) * T + 0.0001337) * T2;
    v.E = 1 + (-7.4e-6 * T - 0.002516) * T;
    v.M = normalizedRadians(2.5534 + 29.10535669 * k + (-1.1e-7 * T - 2.18e-5) * T2);
    v.Mp = normalizedRadians(201.5643 + 385.81693528 * k + ((-5.8e-8 * T + 1.239e-5) * T + 0.0107438) * T2);
    // A product where the book has a sum: the quadratic term -0.0016341 T2 is missing. Kept, since it changes instants.
    v.F = normalizedRadians(160.7108 + 390.67050274 * k + ((1.1e-8 * T - 2.27e-6) * (-0.0016341 * T)) * T2);
    v.Om = normalizedRadians(124.7746 - 1.5637558 * k + (2.15e-6 * T + 0.0020691) * T2);
    for (std::size_t i = 0; i < planetaryTerms.size(); ++i) {
        const PlanetaryTerm& term = planetaryTerms[i];
        v.A[i + 1] = normalizedRadians(term.base + term.rate * k + term.quadratic * T2);
    }
    return v;
}

bool isQuarter(MoonPhase phase) {
    return phase == MoonPhase::firstQuarter || phase == MoonPhase::lastQuarter;
}

/// Adds a table of terms in its order, with the coefficients of one of its two columns.
template<std::size_t Size>
void addTerms(const std::array<PhaseTerm, Size>& terms, double PhaseTerm::*column, PhaseValues& v) {
    const std::array<double, 3> eccentricityPower{1, v.E, v.E * v.E};
    for (const PhaseTerm& term : terms) {
        const double argument = term.moon * v.Mp + term.sun * v.M + term.latitude * v.F + term.node * v.Om;
        const auto power = static_cast<std::size_t>(term.eccentricity);
        v.JDE += term.*column * std::sin(argument) * eccentricityPower[power];
    }
}

double quarterCorrection(const PhaseValues& v) {
    return 0.00306 - 0.00038 * v.E * std::cos(v.M) + 0.00026 * std::cos(v.Mp) - 0.00002 * std::cos(v.Mp - v.M) +
           0.00002 * std::cos(v.M + v.Mp) + 0.00002 * std::cos(v.F + v.F);
}

void addPlanetaryTerms(PhaseValues& v) {
    double sum = 0;
    for (std::size_t i = 0; i < planetaryTerms.size(); ++i) sum += planetaryTerms[i].days * std::sin(v.A[i + 1]);
    v.JDE += sum;
}

} // namespace

double truncatedModulo(double x, double y) {
    const double quotient = std::trunc(base::nearest(x) / base::nearest(y));
    const double remainder = std::abs(x - base::nearest(quotient * y));
    return x < 0 ? -remainder : remainder;
}

double normalizedRadians(double degrees) {
    return truncatedModulo(degrees, 360) * radiansOfDegree;
}

void applyPhaseTerms(MoonPhase phase, PhaseValues& values) {
    if (phase == MoonPhase::newMoon) addTerms(newAndFullTerms, &PhaseTerm::first, values);
    if (phase == MoonPhase::fullMoon) addTerms(newAndFullTerms, &PhaseTerm::second, values);
    if (isQuarter(phase)) {
        addTerms(quarterTerms, phase == MoonPhase::firstQuarter ? &PhaseTerm::first : &PhaseTerm::second, values);
        values.W = quarterCorrection(values);
        if (phase == MoonPhase::lastQuarter) values.W = -values.W;
        values.JDE += values.W;
    }
    addPlanetaryTerms(values);
}

JulianDay moonPhaseJulianDay(std::int32_t lunation, MoonPhase phase) {
    const double k = (lunation - epochLunation) + static_cast<int>(phase) / 4.0;
    PhaseValues values = meanValues(k);
    applyPhaseTerms(phase, values);
    return values.JDE;
}

} // namespace velmoriax::sky
