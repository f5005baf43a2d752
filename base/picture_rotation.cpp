// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/picture_rotation.h"

#include "base/run_time_error.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace velmoriax::base {

namespace {

struct Place {
    int column = 0;
    int row = 0;
};

/// Where a pixel of the rectangle goes; nothing for a mode that copies none.
std::optional<Place> destination(int mode, Place from, int width, int height) {
    switch (mode) {
    case turn::clockwise:
        return Place{height - 1 - from.row, from.column};
    case turn::half:
        return Place{width - 1 - from.column, height - 1 - from.row};
    case turn::counterClockwise:
        return Place{from.row, width - 1 - from.column};
    default:
        return std::nullopt;
    }
}

bool isQuarterTurn(int mode) {
    return mode == turn::clockwise || mode == turn::counterClockwise;
}

/// The bytes of a pixel; none outside the surface.
std::span<std::uint8_t> pixelAt(const PixelSurface& surface, int column, int row) {
    if (column < 0 || column >= surface.width || row < 0 || row >= surface.height) return {};
    const auto start = static_cast<std::size_t>(row) * static_cast<std::size_t>(surface.bytesPerRow) +
                       static_cast<std::size_t>(column) * static_cast<std::size_t>(surface.bytesPerPixel);
    return surface.bytes.subspan(start, static_cast<std::size_t>(surface.bytesPerPixel));
}

PixelSurface blackSurface(std::vector<std::uint8_t>& bytes, int width, int height, int bytesPerPixel) {
    bytes.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) *
                     static_cast<std::size_t>(bytesPerPixel),
                 0);
    return {bytes, width, height, width * bytesPerPixel, bytesPerPixel};
}

} // namespace

void rotatePicture(PixelSurface surface, int mode, int x, int y, int width, int height) {
    if (width <= 0 || height <= 0) return;
    if (isQuarterTurn(mode) && width != height)
        throw base::RunTimeError(base::RunTimeError::Code::subscriptOutOfRange,
                                 "A quarter turn needs a square part of the picture.");
    std::vector<std::uint8_t> bytes;
    const PixelSurface turned = blackSurface(bytes, width, height, surface.bytesPerPixel);
    for (int row = 0; row < height; ++row)
        for (int column = 0; column < width; ++column)
            if (const auto to = destination(mode, {column, row}, width, height))
                std::ranges::copy(pixelAt(surface, x + column, y + row), pixelAt(turned, to->column, to->row).begin());
    for (int row = 0; row < height; ++row)
        for (int column = 0; column < width; ++column) {
            const auto target = pixelAt(surface, x + column, y + row);
            if (!target.empty()) std::ranges::copy(pixelAt(turned, column, row), target.begin());
        }
}

} // namespace velmoriax::base
