// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/window_position.h"

#include <QRect>

class QWidget;

namespace velmoriax::shell {

/// The window's place and size in twips.
WindowPlace placeOf(const QWidget& window);

/// A rectangle as the screens can show it: as it is when all of it is on them, else moved onto the screen nearest to
/// its corner, and no larger than what panels and a title bar leave there.
QRect fittedOnScreens(const QRect& window);

/// Moves and sizes a window to a stored place, fitted on the screens that there are now.
void moveToPlace(QWidget& window, const WindowPlace& place);

/// Puts a window that is not shown yet into the middle of a place, fitted on the screens.
void centreOver(QWidget& window, const QRect& place);

/// Puts a window into the middle of the primary screen, no larger than what panels leave there.
void centreOnScreen(QWidget& window);

} // namespace velmoriax::shell
