// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/popup_places.h"

class QScreen;

namespace velmoriax::shell {

/// A screen with what panels take of it at the right, at the bottom and at the left. All zeros for no screen.
ScreenMeasures measuresOf(const QScreen* screen);

} // namespace velmoriax::shell
