// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/focused_button.h"

#include "widgets/link_label.h"
#include "widgets/picture_box.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QPushButton>

namespace velmoriax::widgets {

namespace {

/// Check boxes and option buttons are toggled by the space bar alone.
bool isPressedByReturn(const QAbstractButton* button) {
    return button && !button->isCheckable();
}

QPushButton* defaultButton(const QWidget& window) {
    for (auto* button : window.findChildren<QPushButton*>())
        if (button->isDefault() && button->isVisible() && button->isEnabled()) return button;
    return nullptr;
}

} // namespace

bool usesReturn(const QWidget& control) {
    return isPressedByReturn(qobject_cast<const QAbstractButton*>(&control)) ||
           qobject_cast<const PictureBox*>(&control) || qobject_cast<const LinkLabel*>(&control) ||
           qobject_cast<const QAbstractItemView*>(&control);
}

bool pressFocusedButton(const QWidget& window, const QKeyEvent& event) {
    if (event.key() != Qt::Key_Return && event.key() != Qt::Key_Enter) return false;
    auto* button = qobject_cast<QAbstractButton*>(window.focusWidget());
    if (!isPressedByReturn(button)) button = defaultButton(window);
    if (button && !event.isAutoRepeat()) button->click();
    return button != nullptr;
}

} // namespace velmoriax::widgets
