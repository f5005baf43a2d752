// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/date_picker.h"

#include "widgets/calendar.h"
#include "widgets/typed_date.h"

#include <QCalendarWidget>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScreen>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>

namespace velmoriax::widgets {

namespace {

constexpr int longestText = 10; ///< "12/31/9999"

} // namespace

DatePicker::DatePicker(QWidget* parent) : QComboBox(parent) {
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setCompleter(nullptr);
    setFocusPolicy(Qt::StrongFocus);
    setSizeAdjustPolicy(QComboBox::AdjustToContents);
    setMinimumContentsLength(longestText);
    lineEdit()->setMaxLength(longestText);
    lineEdit()->setText(dateText(date_));
}

void DatePicker::setDate(QDate date) {
    lineEdit()->setText(dateText(date));
    if (date == date_) return;
    date_ = date;
    Q_EMIT dateChanged(date);
}

void DatePicker::commitTyped() {
    setDate(typedDate(lineEdit()->text()).value_or(date_));
}

void DatePicker::focusOutEvent(QFocusEvent* event) {
    commitTyped();
    QComboBox::focusOutEvent(event);
}

void DatePicker::keyPressEvent(QKeyEvent* event) {
    const bool alone = event->modifiers() == Qt::NoModifier || event->modifiers() == Qt::KeypadModifier;
    if (alone && event->key() == Qt::Key_Up) return step(1);
    if (alone && event->key() == Qt::Key_Down) return step(-1);
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) commitTyped();
    QComboBox::keyPressEvent(event);
}

void DatePicker::wheelEvent(QWheelEvent* event) {
    if (!hasFocus()) return event->ignore();
    const int notches = event->angleDelta().y() / QWheelEvent::DefaultDeltasPerStep;
    if (notches != 0) step(notches);
}

/// A screen reader lists the text as a control inside the box.
void DatePicker::showEvent(QShowEvent* event) {
    lineEdit()->setAccessibleName(accessibleName());
    QComboBox::showEvent(event);
}

void DatePicker::step(int steps) {
    const int cursor = lineEdit()->cursorPosition();
    commitTyped();
    setDate(steppedDate(date_, cursor, steps));
    lineEdit()->setCursorPosition(cursor);
}

// ---- The calendar

QWidget& DatePicker::dropDown() {
    if (dropDown_) return *dropDown_;
    dropDown_ = new QFrame(this, Qt::Popup);
    auto* layout = new QVBoxLayout(dropDown_);
    layout->setContentsMargins(1, 1, 1, 1);
    dropDown_->setObjectName(QStringLiteral("calendarDropDown"));
    calendar_ = new QCalendarWidget;
    calendar_->setAccessibleName(QStringLiteral("Calendar"));
    setUpCalendar(*calendar_);
    layout->addWidget(calendar_);
    connect(calendar_, &QCalendarWidget::clicked, this, &DatePicker::pick);
    connect(calendar_, &QCalendarWidget::activated, this, &DatePicker::pick);
    return *dropDown_;
}

void DatePicker::showPopup() {
    commitTyped();
    QWidget& popup = dropDown();
    calendar_->setSelectedDate(date_);
    popup.adjustSize();
    const QRect area = screen()->availableGeometry();
    const QPoint below = mapToGlobal(rect().bottomLeft());
    const QPoint above = mapToGlobal(QPoint(0, -popup.height()));
    const QPoint place = below.y() + popup.height() > area.bottom() && above.y() >= area.top() ? above : below;
    const int rightmost = std::max(area.left(), area.right() - popup.width());
    popup.move(std::clamp(place.x(), area.left(), rightmost), place.y());
    popup.show();
    calendar_->setFocus();
}

void DatePicker::pick(QDate date) {
    dropDown_->close();
    setDate(date);
}

} // namespace velmoriax::widgets
