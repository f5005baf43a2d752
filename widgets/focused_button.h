// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QKeyEvent;
class QWidget;

namespace velmoriax::widgets {

/// Whether Return does something in a control itself: a button, a picture, a link, a list of days.
bool usesReturn(const QWidget& control);

/// Makes Return press the button of `window` that has the focus, as the space bar does, and the default button when
/// what has the focus has no use for the key: the toolkit does that for dialogs alone. True when the key was taken.
bool pressFocusedButton(const QWidget& window, const QKeyEvent& event);

} // namespace velmoriax::widgets
