// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "biorhythm/cycle_table.h"
#include "biorhythm/second_profile.h"

#include <array>
#include <string>
#include <string_view>

/// How well two people fit together: "Actual" by the present values of their cycles, "General" by the days between
/// their births alone. All percentages are 32-bit numbers from 0 to 100.
namespace velmoriax::biorhythm {

struct Compatibility {
    CycleValues mainPercent{}; ///< at the moment when the window was loaded
    CycleValues secondPercent{};
    CycleValues actualPercent{}; ///< two decimals
    CycleValues generalPercent{};
    float meanPercent = 0; ///< of the comparison made last
    std::string levelWord;
};

struct CompatibilityLabels {
    std::array<std::string, cycleCount> cycles; ///< such as "Physical: 75.3 %"
    std::string mean;
};

/// The labels before the first comparison.
CompatibilityLabels firstCompatibilityLabels();

/// A sine on the scale from 0 to 100: -1 becomes 0, zero 50, and 1 becomes 100.
double onPercentScale(double sine);

/// Sets `mainPercent` from the main profile's cycles.
void takeMainCycles(Compatibility& result, const CycleValues& cycle);

/// Sets `levelWord` by `meanPercent`; a value outside 0 to 100 leaves the word as it was.
void Niveles(Compatibility& result);

/// For each cycle the mean of the two people's values on the date of reading: high when both are high. Computes the
/// second person's age.
CompatibilityLabels showActual(Compatibility& result, SecondProfile& second, base::CivilDate reading,
                               base::CivilTime clock);

/// For each cycle how far the two people are in phase, for all time: 100 when whole periods are between the births, 0
/// at half a period.
CompatibilityLabels showGeneral(Compatibility& result, base::CivilDate mainBirth, base::CivilDate secondBirth);

/// The headings of the two tabs.
std::string actualHeading(std::string_view mainName, std::string_view secondName, base::CivilDate reading,
                          base::CivilTime clock);
std::string generalHeading(std::string_view mainName, std::string_view secondName);

} // namespace velmoriax::biorhythm
