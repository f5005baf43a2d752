// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessibleWidget>

namespace velmoriax::widgets {

/// A widget with a role of its own, for screen readers.
class WidgetForReader : public QAccessibleWidget {
public:
    WidgetForReader(QWidget* widget, QAccessible::Role role);

    QString text(QAccessible::Text kind) const override;
    int childCount() const override;
    QStringList actionNames() const override;
    void doAction(const QString& name) override;

private:
    bool canBePressed() const;
};

} // namespace velmoriax::widgets
