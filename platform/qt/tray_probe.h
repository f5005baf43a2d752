// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velmoriax::desktop {

/// Whether a panel with a tray is there, of either protocol. Does not touch the toolkit's tray class.
bool trayIsThere();

} // namespace velmoriax::desktop
