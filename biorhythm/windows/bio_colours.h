// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "biorhythm/cycle_table.h"

#include <QColor>

namespace velmoriax::biorhythm {

inline QColor colourOf(base::Colour colour) {
    return {colour.red, colour.green, colour.blue};
}

/// The background of chart and bars. It is almost black, since pure blue is too dark to be seen on anything lighter.
inline QColor plotBackground() {
    return {3, 4, 12};
}

} // namespace velmoriax::biorhythm
