// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "biorhythm/cycle_table.h"
#include "biorhythm/second_profile.h"

#include <array>
#include <string>
#include <string_view>

/// How two people go together: "Actual" by the present values of their cycles, "General" by the distance of their
/// births alone. All percentages are 32-bit numbers from 0 to 100.
namespace velmoriax::biorhythm {

struct Compatibility {
    CycleValues mainPercent{}; ///< of the moment at which the window was loaded
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

/// A sine on the scale 0 to 100: low 0, crossing 50, high 100.
double onPercentScale(double sine);

/// Takes the main profile's cycles of this moment.
void takeMainCycles(Compatibility& record, const CycleValues& cycle);

/// The word of `meanPercent`; a value outside 0 to 100 leaves the word.
void Niveles(Compatibility& record);

/// Whether both cycles are high at one time: the mean of the two people's present values. Computes the second one's
/// age.
CompatibilityLabels showActual(Compatibility& record, SecondProfile& second, base::CivilDate reading,
                               base::CivilTime clock);

/// Whether two cycles run in step for good: 100 when the births lie whole periods apart, 0 at half a period.
CompatibilityLabels showGeneral(Compatibility& record, base::CivilDate mainBirth, base::CivilDate secondBirth);

/// The headings of the two tabs.
std::string actualHeading(std::string_view mainName, std::string_view secondName, base::CivilDate reading,
                          base::CivilTime clock);
std::string generalHeading(std::string_view mainName, std::string_view secondName);

} // namespace velmoriax::biorhythm
