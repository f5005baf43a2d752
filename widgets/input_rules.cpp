// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/input_rules.h"

#include "widgets/date_picker.h"
#include "widgets/one_line_text.h"
#include "widgets/spin_box.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QEvent>
#include <QLineEdit>
#include <QTabBar>

namespace velmoriax::widgets {

namespace {

bool isInside(const QWidget* widget, const QWidget* ancestor) {
    return widget && ancestor && (widget == ancestor || ancestor->isAncestorOf(widget));
}

/// The control around a widget whose value the wheel changes; null for any other widget.
QWidget* wheelControl(QWidget* widget) {
    for (; widget && !widget->isWindow(); widget = widget->parentWidget())
        if (qobject_cast<QComboBox*>(widget) || qobject_cast<QAbstractSpinBox*>(widget) ||
            qobject_cast<QTabBar*>(widget) || qobject_cast<QCalendarWidget*>(widget))
            return widget;
    return nullptr;
}

bool wheelIsRefused(QWidget* widget) {
    const QWidget* control = wheelControl(widget);
    return control && !isInside(QApplication::focusWidget(), control);
}

void setUp(QWidget& widget) {
    if (widget.focusPolicy() == Qt::WheelFocus) widget.setFocusPolicy(Qt::StrongFocus);
    if (auto* line = qobject_cast<QLineEdit*>(&widget)) keepOneLine(*line);
}

} // namespace

void commitTypedValue() {
    QWidget* focused = QApplication::focusWidget();
    if (auto* number = qobject_cast<SpinBox*>(focused))
        number->commitTyped();
    else if (auto* date = qobject_cast<DatePicker*>(focused))
        date->commitTyped();
}

InputRules::InputRules(QApplication& application) {
    application.installEventFilter(this);
}

bool InputRules::eventFilter(QObject* watched, QEvent* event) {
    auto* widget = watched->isWidgetType() ? static_cast<QWidget*>(watched) : nullptr;
    switch (event->type()) {
    case QEvent::Shortcut:
        commitTypedValue();
        return false;
    case QEvent::MouseButtonPress:
        if (widget && !isInside(widget, QApplication::focusWidget())) commitTypedValue();
        return false;
    case QEvent::Polish:
        if (widget) setUp(*widget);
        return false;
    case QEvent::Wheel:
        if (!widget || !wheelIsRefused(widget)) return false;
        event->ignore(); // what is around the control scrolls
        return true;
    default:
        return false;
    }
}

} // namespace velmoriax::widgets
