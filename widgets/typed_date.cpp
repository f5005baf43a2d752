// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/typed_date.h"

#include <QRegularExpression>

#include <algorithm>

namespace velmoriax::widgets {

namespace {

/// The years that one or two digits stand for: 30 to 99 are of the twentieth century, 0 to 29 of the next.
int fullYear(int year, qsizetype digits) {
    if (digits > 2) return std::clamp(year, firstPickedYear, lastPickedYear);
    constexpr int firstOfCentury = 30;
    return year + (year < firstOfCentury ? 2000 : 1900);
}

} // namespace

std::optional<QDate> typedDate(const QString& text) {
    static const QRegularExpression form(QStringLiteral("^([0-9]{1,2})[-/. ]([0-9]{1,2})[-/. ]([0-9]{1,5})$"));
    const auto parts = form.match(text.trimmed());
    if (!parts.hasMatch()) return std::nullopt;
    const int year = fullYear(parts.captured(3).toInt(), parts.capturedLength(3));
    const QDate first(year, parts.captured(1).toInt(), 1);
    const int day = parts.captured(2).toInt();
    if (!first.isValid() || day < 1) return std::nullopt;
    return first.addDays(std::min(day, first.daysInMonth()) - 1);
}

QString dateText(QDate date) {
    return QStringLiteral("%1/%2/%3").arg(date.month()).arg(date.day()).arg(date.year());
}

QDate steppedDate(QDate date, int cursor, int steps) {
    const auto separators = dateText(date).left(cursor).count(u'/');
    const QDate stepped = separators == 0   ? date.addMonths(steps)
                          : separators == 1 ? date.addDays(steps)
                                            : date.addYears(steps);
    const bool inside = stepped.year() >= firstPickedYear && stepped.year() <= lastPickedYear;
    return inside ? stepped : date;
}

} // namespace velmoriax::widgets
