// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>

#include <optional>

namespace velmoriax::widgets {

inline constexpr int firstPickedYear = 100;
inline constexpr int lastPickedYear = 9999;

/// The date of a typed "month/day/year"; a hyphen, a full stop or a space separates as well. A day beyond the end of
/// the month is its last one, a year beyond 9999 is 9999, a year of one or two digits is one of 1930 to 2029. Nothing
/// for any other text.
std::optional<QDate> typedDate(const QString& text);

/// "month/day/year" without leading zeros, in Latin digits whatever the desktop's language.
QString dateText(QDate date);

/// The date with one of its parts changed by some steps: the month, the day or the year, whichever the cursor in its
/// text is at. A date outside the years 100 to 9999 is not returned: the date stays as it is.
QDate steppedDate(QDate date, int cursor, int steps);

} // namespace velmoriax::widgets
