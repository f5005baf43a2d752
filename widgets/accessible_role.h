// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessible>

namespace velmoriax::widgets {

/// Tells screen readers what a widget is, where they cannot know it from the toolkit. A picture or link with a role is
/// pressed by a screen reader as by the space bar when it takes the focus. What is inside a widget with a role counts
/// only while it is visible.
void setAccessibleRole(QWidget& widget, QAccessible::Role role);

} // namespace velmoriax::widgets
