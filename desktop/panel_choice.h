// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/task_bar.h"

#include <QRect>

#include <optional>

namespace velmoriax::desktop {

/// Cuts a band off the edge of the area that it runs along.
QRect withoutBand(QRect area, const QRect& band);

/// The panel of a screen, of which `work` is what panels leave. With panels at several edges it is the one that holds
/// the tray icon; where the icon's place is not known (an empty rectangle), the one at the bottom, then the thickest.
/// Nothing when no panel takes anything.
std::optional<platform::TaskBarPosition> panelOf(const QRect& screen, const QRect& work, const QRect& icon);

} // namespace velmoriax::desktop
