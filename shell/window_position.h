// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/options_store.h"

#include <optional>

namespace velmoriax::shell {

inline constexpr int twipsPerPixel = 15;

/// Place and size of a window, in twips of 1/15 logical pixel.
struct WindowPlace {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    bool operator==(const WindowPlace&) const = default;
};

/// The stored place of the card of the day; nothing when all four values are zero. The leading number of each value
/// counts. The values are held wider than the 16 bits they once had, since a large screen passes 32767 twips; what is
/// beyond 32 bits is taken to its end.
std::optional<WindowPlace> storedPlace(const OptionsStore& options);

void storePlace(OptionsStore& options, const WindowPlace& place);

} // namespace velmoriax::shell
