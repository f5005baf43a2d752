// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>

namespace velmoriax::base {

/// Pixels in memory, of any number of bytes each. A row may be longer than its pixels take.
struct PixelSurface {
    std::span<std::uint8_t> bytes;
    int width = 0; ///< in pixels
    int height = 0;
    int bytesPerRow = 0;
    int bytesPerPixel = 0;
};

namespace turn {
inline constexpr int clockwise = 0;
inline constexpr int half = 1;
inline constexpr int counterClockwise = 2;
} // namespace turn

/// Turns a rectangle of the surface in place. A mode beside the three leaves the rectangle black, which is all its
/// bytes zero; what is outside the surface is black too. A quarter turn keeps the rectangle's shape: it throws
/// RunTimeError Subscript out of range for one that is not square, and the surface stays as it was.
void rotatePicture(PixelSurface surface, int mode, int x, int y, int width, int height);

} // namespace velmoriax::base
