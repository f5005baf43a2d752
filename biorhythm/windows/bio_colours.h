// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "biorhythm/cycle_table.h"

#include <QColor>

namespace velmoriax::biorhythm {

inline QColor colourOf(base::Colour colour) {
    return {colour.red, colour.green, colour.blue};
}

/// The ground of chart and bars. Pure blue is so dark a colour that only a ground near black sets it off.
inline QColor plotGround() {
    return {3, 4, 12};
}

} // namespace velmoriax::biorhythm
