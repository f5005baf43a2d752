// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/spin_box.h"

#include "base/date_text.h"
#include "widgets/conversions.h"

#include <QLineEdit>
#include <QSignalBlocker>
#include <QWheelEvent>

namespace velmoriax::widgets {

namespace {

constexpr int lettersOfUniqueName = 3; ///< "Jun" and "Jul", "Mar" and "May" differ in the third

QString monthName(int month) {
    return qtText(base::monthNameEnglish(month));
}

/// The first month whose name begins with the text; 0 for none.
int monthBeginningWith(const QString& text) {
    for (int month = 1; month <= 12; ++month)
        if (monthName(month).startsWith(text, Qt::CaseInsensitive)) return month;
    return 0;
}

} // namespace

SpinBox::SpinBox(QWidget* parent) : QSpinBox(parent) {
    setKeyboardTracking(false);
    setCorrectionMode(QAbstractSpinBox::CorrectToNearestValue);
    setFocusPolicy(Qt::StrongFocus);
    setAccelerated(true);
}

QString SpinBox::face() const {
    return lineEdit()->objectName();
}

void SpinBox::setFace(const QString& name) {
    lineEdit()->setObjectName(name);
}

void SpinBox::showValue(int value) {
    const QSignalBlocker quiet(this);
    setValue(value);
}

void SpinBox::wheelEvent(QWheelEvent* event) {
    if (hasFocus()) return QSpinBox::wheelEvent(event);
    event->ignore();
}

MonthSpinBox::MonthSpinBox(QWidget* parent) : SpinBox(parent) {
    setRange(1, 12);
}

QString MonthSpinBox::textFromValue(int value) const {
    return monthName(value);
}

int MonthSpinBox::valueFromText(const QString& text) const {
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    return isNumber ? number : monthBeginningWith(text);
}

QValidator::State MonthSpinBox::validate(QString& text, int&) const {
    if (text.isEmpty() || text == u"0") return QValidator::Intermediate;
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (isNumber) return number >= 1 && number <= 12 ? QValidator::Acceptable : QValidator::Invalid;
    if (monthBeginningWith(text) == 0) return QValidator::Invalid;
    return text.size() < lettersOfUniqueName ? QValidator::Intermediate : QValidator::Acceptable;
}

} // namespace velmoriax::widgets
