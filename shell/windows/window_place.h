// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/window_position.h"

class QWidget;

namespace velmoriax::shell {

/// The window's place and size in twips.
WindowPlace placeOf(const QWidget& window);

/// Moves and sizes a window. A place whose title bar would lie on no screen is brought back onto the nearest one.
void moveToPlace(QWidget& window, const WindowPlace& place);

} // namespace velmoriax::shell
