// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/accessible_role.h"

#include "widgets/widget_for_reader.h"

#include <QVariant>
#include <QWidget>

namespace velmoriax::widgets {

namespace {

constexpr const char* roleProperty = "accessibleRole";

QAccessibleInterface* forReader(const QString&, QObject* object) {
    const QVariant role = object ? object->property(roleProperty) : QVariant();
    if (!role.isValid()) return nullptr;
    return new WidgetForReader(static_cast<QWidget*>(object), static_cast<QAccessible::Role>(role.toInt()));
}

} // namespace

void setAccessibleRole(QWidget& widget, QAccessible::Role role) {
    [[maybe_unused]] static const bool installed = (QAccessible::installFactory(forReader), true);
    widget.setProperty(roleProperty, static_cast<int>(role));
    // The toolkit keeps what it made for the widget before there was a role.
    QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(QAccessible::queryAccessibleInterface(&widget)));
}

} // namespace velmoriax::widgets
