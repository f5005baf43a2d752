// SPDX-License-Identifier: GPL-3.0-or-later
#include "sky/moon_texts.h"

#include "base/date_text.h"
#include "base/number_text.h"
#include "base/percent.h"
#include "base/rounding.h"
#include "sky/moon_pictures.h"

#include <array>
#include <string_view>

namespace velmoriax::sky {

namespace {

using NextOrPrevious = base::DateValue (MoonEngine::*)(base::DateValue) const;

struct PhaseLine {
    std::string_view caption;
    NextOrPrevious instant;
};

constexpr std::array<PhaseLine, 4> nextLines{{
    {"Next Full Moon: ", &MoonEngine::nextFullMoon},
    {"Next New Moon: ", &MoonEngine::nextNewMoon},
    {"Next First Quarter: ", &MoonEngine::nextFirstQuarter},
    {"Next Last Quarter: ", &MoonEngine::nextLastQuarter},
}};

constexpr std::array<PhaseLine, 4> previousLines{{
    {"Previous Full Moon: ", &MoonEngine::previousFullMoon},
    {"Previous New Moon: ", &MoonEngine::previousNewMoon},
    {"Previous First Quarter: ", &MoonEngine::previousFirstQuarter},
    {"Previous Last Quarter: ", &MoonEngine::previousLastQuarter},
}};

constexpr double minutesOfDay = 1440;
constexpr std::int16_t halfAngleOfFull = 90;

/// The per cent missing to full, a whole number.
std::int16_t percentMissing(double fraction) {
    return base::nearestInt16(100 - fraction * 100);
}

/// What a percentage text counts: the part lit while the Moon grows, the part missing while it shrinks.
double percentCounted(bool waning, double fraction) {
    return waning ? base::percentOf(percentMissing(fraction), 100) : fraction * 100;
}

std::string linesOf(const MoonEngine& engine, const std::array<PhaseLine, 4>& lines, base::DateValue moment) {
    std::string text;
    for (const PhaseLine& line : lines) {
        if (!text.empty()) text += '\n';
        text += std::string(line.caption) + base::generalText((engine.*line.instant)(moment)) + " UT";
    }
    return text;
}

/// A day is taken off for the previous phases, so that one just past is not reported as the moment itself.
std::string phaseLines(const MoonEngine& engine, base::DateValue moment, bool showPrevious) {
    if (showPrevious) return linesOf(engine, previousLines, base::addMinutes(moment, -minutesOfDay));
    return linesOf(engine, nextLines, moment);
}

std::string illuminationAndAge(double fraction, double age) {
    return "Illumination: " + base::formatFixed(fraction, 7) + "    (0 <----> 1)\n" +
           "Age of Moon: " + base::formatFixed(age, 7) + " days";
}

/// The name of a principal phase when the rounded percentage shows one, which it does for hours around the instant.
/// Empty otherwise, and for "50%" at a half angle of exactly 100, which belongs to neither quarter.
std::string_view principalPhase(std::string_view percentText, std::int16_t h) {
    if (percentText == "100%") return "Full Moon";
    if (percentText == "%") return "New Moon";
    if (percentText == "50%" && h < 100) return "First Quarter";
    if (percentText == "50%" && h > 100) return "Last Quarter";
    return {};
}

std::string wholePercentText(double fraction) {
    return base::formatWholeOrEmpty(fraction * 100) + "%";
}

} // namespace

MoonSummary moonPhaseText(const MoonEngine& engine, base::DateValue date, std::int16_t h, double fraction) {
    const bool waning = h > halfAngleOfFull;
    if (waning) h = percentMissing(fraction);
    const std::string percent = base::formatWholeOrEmpty(percentCounted(waning, fraction));
    // Nothing missing to full, or nothing lit yet, is written as 100% from the other end.
    const bool fromFull = waning == percent.empty();
    const std::string percentText = percent.empty() ? "100%" : percent + "%";
    const std::string name(engine.moonPhaseName(date));
    return {name + ": " + percentText + (fromFull ? " from Full" : " from New"), percentText, h};
}

MoonSummary moonSummary(const MoonEngine& engine, const LitMoment& lit) {
    const double fraction = lit.light.moonIlluminatedFraction;
    const std::int16_t h = halfPhaseAngle(engine.moonPhaseAngle(lit.moonMoment));
    const std::string percent = wholePercentText(fraction);
    const std::string_view principal = principalPhase(percent, h);
    if (!principal.empty()) return {std::string(principal), percent, h};
    MoonSummary between = moonPhaseText(engine, lit.moonMoment, h, fraction);
    between.text.insert(0, "Moon ");
    return between;
}

MoonDetails refreshMoonDetails(const MoonEngine& engine, const LitMoment& lit, bool showPrevious) {
    const base::DateValue moonMoment = lit.moonMoment;
    const double fraction = lit.light.moonIlluminatedFraction;
    MoonDetails details;
    details.labelDetall = illuminationAndAge(fraction, engine.moonAgeDays(moonMoment));
    details.labelInfo = phaseLines(engine, moonMoment, showPrevious);
    const MoonSummary summary = moonSummary(engine, lit);
    details.labelResum = summary.text;
    details.moonPercentText = summary.moonPercentText;
    details.labelAd = moonListHint(showPrevious);
    return details;
}

std::string moonListHint(bool showPrevious) {
    return showPrevious ? "(Click on the Moon to see previous)" : "(Click on the Moon to see next)";
}

std::string moonDateTip(const MoonEngine& engine, base::DateValue moment, std::int16_t h, double fraction) {
    const bool waning = h > halfAngleOfFull;
    const double percent = percentCounted(waning, fraction);
    const std::string whole = base::formatWholeOrEmpty(percent);
    if (whole.empty()) return waning ? "Full Moon" : "New Moon";
    if (waning && whole == "100") return "New Moon";
    // The waning percentage was rounded to a whole number before, so its two decimals are always zeros.
    return std::string(engine.moonPhaseName(moment)) + ": " + base::formatFixed(percent, 2) +
           (waning ? "% of New" : "% of Full");
}

DateMoon drawDateMoon(const MoonEngine& engine, base::CivilDate date) {
    const base::DateValue noon = base::dateValueOf(date, {12, 0, 0});
    const double fraction = moonIllumination(noon).moonIlluminatedFraction;
    const float angle = engine.moonPhaseAngle(noon);
    const std::int16_t h = halfPhaseAngle(angle);
    const std::string_view phase = principalPhase(wholePercentText(fraction), h);
    return {moonPictureName(angle, MoonPictureRule::anotherDay),
            phase.empty() ? moonDateTip(engine, noon, h, fraction) : std::string(phase)};
}

std::string lunatip(const MoonEngine& engine, base::DateValue moment) {
    const double fraction = moonIllumination(moment).moonIlluminatedFraction;
    // A half angle of 90 itself counts as waning here, other than in the windows.
    const bool waning = halfPhaseAngle(engine.moonPhaseAngle(moment)) >= halfAngleOfFull;
    const std::string whole = base::formatWholeOrEmpty(percentCounted(waning, fraction));
    if (whole.empty()) return waning ? "Moon Phase: FULL (=)" : "Moon Phase: NEW (=)";
    if (whole == "100") return waning ? "Moon Phase: NEW (=)" : "Moon Phase: FULL (=)";
    return "Moon Phase(illum.): " + base::formatFixed(fraction * 100, 2) + (waning ? " % (<)" : " % (>)");
}

} // namespace velmoriax::sky
