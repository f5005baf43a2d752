// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/task_bar.h"

#include <QRect>

#include <optional>
#include <vector>

namespace velmoriax::desktop {

/// The bands that a window reserves along the edges of a desktop of that size, by the numbers of its property
/// _NET_WM_STRUT_PARTIAL: the widths at the left, right, top and bottom edge, then where each band begins and ends. All
/// in native pixels of the whole desktop. Empty when numbers are missing.
std::vector<QRect> reservedBands(const std::vector<int>& strut, const QSize& desktop);

/// What bands leave of a screen, in logical pixels. `screen` and the bands are in native pixels, `ratio` of which make
/// a logical one; the corner of a screen is the same in both.
QRect workArea(const QRect& screen, double ratio, const std::vector<QRect>& bands);

/// The panel of a screen, of which `work` is what panels leave. With panels at several edges it is the one that holds
/// the tray icon; where the icon's place is not known (an empty rectangle), the one at the bottom, then the thickest.
/// An icon near an edge where no panel reserves anything is in a panel that hides by itself or lies over the windows:
/// its band is as thick as puts the icon into its middle. Nothing when no panel is known.
std::optional<platform::TaskBarPosition> panelOf(const QRect& screen, const QRect& work, const QRect& icon);

} // namespace velmoriax::desktop
