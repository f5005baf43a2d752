// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/colour.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

/// The four cycles and their names. Every table and array of the cycles has this order.
namespace velmoriax::biorhythm {

inline constexpr std::size_t physical = 0;
inline constexpr std::size_t emotional = 1;
inline constexpr std::size_t intellectual = 2;
inline constexpr std::size_t intuition = 3;
inline constexpr std::size_t cycleCount = 4;

/// The sines of the four cycles, from -1 to 1.
using CycleValues = std::array<float, cycleCount>;

struct CycleFacts {
    int period;                 ///< in days
    std::string_view lineWord;  ///< in the lines of the alert, with colon and space
    std::string_view name;      ///< in the view, the chart and the compatibility
    std::string_view shortName; ///< under the bars and on the lines of the chart
};
extern const std::array<CycleFacts, cycleCount> cycleTable;

inline constexpr base::Colour pureGreen{0, 255, 0};
inline constexpr base::Colour pureRed{255, 0, 0};

} // namespace velmoriax::biorhythm
