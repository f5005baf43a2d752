// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/focused_button.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QToolButton>

namespace velmoriax::widgets {

bool pressFocusedButton(const QWidget& window, const QKeyEvent& event) {
    const bool isReturn = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    auto* button = qobject_cast<QAbstractButton*>(window.focusWidget());
    // Check boxes and option buttons are toggled by the space bar alone.
    const bool isPressed = qobject_cast<QPushButton*>(button) || qobject_cast<QToolButton*>(button);
    if (!isReturn || !isPressed) return false;
    if (!event.isAutoRepeat()) button->click();
    return true;
}

} // namespace velmoriax::widgets
