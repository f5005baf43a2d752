// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/topmost.h"

#include <QWidget>
#include <QWindow>

namespace velmoriax::widgets {

void Topmost(QWidget& Ventana) {
    Ventana.winId(); // the native window comes into being
    Ventana.windowHandle()->setFlag(Qt::WindowStaysOnTopHint, true);
    Ventana.raise();
}

void NotTopmost(QWidget& Ventana) {
    if (QWindow* window = Ventana.windowHandle()) window->setFlag(Qt::WindowStaysOnTopHint, false);
}

} // namespace velmoriax::widgets
