// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QKeyEvent;
class QWidget;

namespace velmoriax::widgets {

/// Makes Return press the push or tool button of `window` that has the focus, as the space bar does: the toolkit does
/// that for dialogs alone. True when the key was taken.
bool pressFocusedButton(const QWidget& window, const QKeyEvent& event);

} // namespace velmoriax::widgets
