// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/spin_box.h"

#include "base/date_text.h"
#include "widgets/conversions.h"

#include <QLineEdit>
#include <QSignalBlocker>
#include <QStyle>

#include <algorithm>
#include <optional>

namespace velmoriax::widgets {

namespace {

/// The number of a text in Latin digits; nothing for any other text.
std::optional<int> numberOf(const QString& text) {
    bool isNumber = false;
    const int number = QLocale::c().toInt(text, &isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

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
    setLocale(QLocale::c()); // Latin digits, whatever the desktop's language
    setKeyboardTracking(false);
    setFocusPolicy(Qt::StrongFocus);
    setAccelerated(true);
    connect(lineEdit(), &QLineEdit::textEdited, this, &SpinBox::markOutside);
    connect(this, &QAbstractSpinBox::editingFinished, this, &SpinBox::markOutside);
}

QString SpinBox::face() const {
    return lineEdit()->objectName();
}

void SpinBox::setFace(const QString& name) {
    lineEdit()->setObjectName(name);
}

/// A screen reader lists the text as a control inside the box.
void SpinBox::showEvent(QShowEvent* event) {
    lineEdit()->setAccessibleName(accessibleName());
    QSpinBox::showEvent(event);
}

void SpinBox::commitTyped() {
    interpretText();
    markOutside();
}

void SpinBox::showValue(int value) {
    const QSignalBlocker quiet(this);
    setValue(value);
}

QValidator::State SpinBox::validate(QString& text, int&) const {
    if (text.isEmpty()) return QValidator::Intermediate;
    const auto number = numberOf(text);
    const auto longest = std::max<qsizetype>(QString::number(maximum()).size(), 2);
    if (!number || *number < 0 || text.size() > longest) return QValidator::Invalid;
    return *number >= minimum() && *number <= maximum() ? QValidator::Acceptable : QValidator::Intermediate;
}

void SpinBox::fixup(QString& text) const {
    const auto number = numberOf(text);
    if (number) text = textFromValue(std::clamp(*number, minimum(), maximum()));
}

void SpinBox::markOutside() {
    const auto number = numberOf(text());
    const bool outside = number && (*number < minimum() || *number > maximum());
    if (outside == lineEdit()->property("outside").toBool()) return;
    lineEdit()->setProperty("outside", outside);
    lineEdit()->style()->polish(lineEdit());
}

MonthSpinBox::MonthSpinBox(QWidget* parent) : SpinBox(parent) {
    setRange(1, 12);
}

QString MonthSpinBox::textFromValue(int value) const {
    return monthName(value);
}

int MonthSpinBox::valueFromText(const QString& text) const {
    return numberOf(text).value_or(monthBeginningWith(text));
}

QValidator::State MonthSpinBox::validate(QString& text, int& position) const {
    const auto number = numberOf(text);
    if (number && *number > maximum()) return QValidator::Invalid; // there is no nearest month to a thirteenth
    if (text.isEmpty() || number) return SpinBox::validate(text, position);
    if (monthBeginningWith(text) == 0) return QValidator::Invalid;
    return text.size() < lettersOfUniqueName ? QValidator::Intermediate : QValidator::Acceptable;
}

} // namespace velmoriax::widgets
