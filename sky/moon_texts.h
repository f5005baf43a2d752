// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sky/moon_engine.h"
#include "sky/moon_illumination.h"

#include <cstdint>
#include <string>

/// What the windows and the tray tip say about the Moon. Moments are universal time; `fraction` is the illuminated
/// fraction of the same moment, 0 to 1. Lines are separated by a line feed.
namespace velmoriax::sky {

struct MoonSummary {
    std::string text;
    std::string moonPercentText; ///< the percentage in it, such as "31%"
    std::int16_t h = 0;          ///< the half angle; in the waning half the per cent that are missing to full
};

/// The summary between the principal phases, such as "Waxing Crescent: 31% from Full". In the waxing half (h at most
/// 90) the percentage is what is lit, in the waning half what is missing to full.
MoonSummary moonPhaseText(const MoonEngine& engine, base::DateValue date, std::int16_t h, double fraction);

/// A moment, and the light of the Moon then.
struct LitMoment {
    base::DateValue moonMoment;
    MoonLight light;
};

/// The summary of any moment: the name of a principal phase, or as in "Moon Waxing Crescent: 31% from Full".
MoonSummary moonSummary(const MoonEngine& engine, const LitMoment& lit);

/// The four labels of the moon details window.
struct MoonDetails {
    std::string labelDetall; ///< illumination and age
    std::string labelInfo;   ///< the four next or previous phases
    std::string labelResum;  ///< the summary line
    std::string labelAd;     ///< names the list that is shown
    std::string moonPercentText;
};

/// Names the list that is shown.
std::string moonListHint(bool showPrevious);

MoonDetails refreshMoonDetails(const MoonEngine& engine, const LitMoment& lit, bool showPrevious);

/// The tip of the moon picture in Another Day between the principal phases.
std::string moonDateTip(const MoonEngine& engine, base::DateValue moment, std::int16_t h, double fraction);

/// The Moon of a day at noon, for Another Day.
struct DateMoon {
    std::string pictureName; ///< empty: the picture on show is kept
    std::string tip;
};

/// Noon of the day is taken as it is, without a conversion to universal time.
DateMoon drawDateMoon(const MoonEngine& engine, base::CivilDate date);

/// The Moon's line of the tray tip, such as "Moon Phase(illum.): 31.47 % (>)".
std::string lunatip(const MoonEngine& engine, base::DateValue moment);

} // namespace velmoriax::sky
