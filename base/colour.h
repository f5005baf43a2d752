// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace velmoriax::base {

struct Colour {
    std::uint8_t red;
    std::uint8_t green;
    std::uint8_t blue;
    bool operator==(const Colour&) const = default;
};

} // namespace velmoriax::base
