// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/widget_for_reader.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

namespace velmoriax::widgets {

WidgetForReader::WidgetForReader(QWidget* widget, QAccessible::Role role) : QAccessibleWidget(widget, role) {}

QString WidgetForReader::text(QAccessible::Text kind) const {
    const QString text = QAccessibleWidget::text(kind);
    if (kind == QAccessible::Name && text.isEmpty()) return widget()->property("text").toString();
    // A tip that is the name as well would be read twice.
    const bool isRead = kind == QAccessible::Description && text == this->text(QAccessible::Name);
    return isRead ? QString() : text;
}

int WidgetForReader::childCount() const {
    return widget()->isVisible() ? QAccessibleWidget::childCount() : 0;
}

bool WidgetForReader::canBePressed() const {
    const bool isControl = role() == QAccessible::Graphic || role() == QAccessible::Link;
    return isControl && widget()->isEnabled() && widget()->focusPolicy() != Qt::NoFocus;
}

QStringList WidgetForReader::actionNames() const {
    QStringList names = QAccessibleWidget::actionNames();
    if (canBePressed()) names.prepend(pressAction());
    return names;
}

void WidgetForReader::doAction(const QString& name) {
    if (name != pressAction() || !canBePressed()) return QAccessibleWidget::doAction(name);
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent space(type, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "));
        QCoreApplication::sendEvent(widget(), &space);
    }
}

} // namespace velmoriax::widgets
