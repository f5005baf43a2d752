// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

/// Keeping a window above the others, through the native window: a change of the widget's own flags would hide it.
namespace velmoriax::widgets {

void Topmost(QWidget& Ventana);
void NotTopmost(QWidget& Ventana);

} // namespace velmoriax::widgets
