// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/window_position.h"

#include <QRect>

class QWidget;

namespace velmoriax::shell {

/// The window's place and size in twips.
WindowPlace placeOf(const QWidget& window);

/// Moves and sizes a window. A place whose title bar would lie on no screen is brought back onto the nearest one.
void moveToPlace(QWidget& window, const WindowPlace& place);

/// The rectangle moved so that all of it lies on the screen nearest to its corner, as far as it fits.
QRect onScreen(QRect window);

/// Puts a window that is not shown yet over the middle of a place, as far as it fits there on the screen.
void centreOver(QWidget& window, const QRect& place);

} // namespace velmoriax::shell
