// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/date_value.h"

/// The dates that can be set in the view: their years, the length of their months, and the step of a day.
namespace velmoriax::biorhythm {

inline constexpr int firstViewYear = 1900;
inline constexpr int lastViewYear = 2100;

/// The days of a month of the view (month 1 to 12). Every century year counts as a common one, 2000 included, so that
/// 29 February 2000 cannot be set. Differences of days are counted by the true calendar.
int daysInViewMonth(int year, int month);

/// The date with its day brought down to the month's length; month and year are kept.
base::CivilDate limitDays(base::CivilDate date);

/// The nearest date that can be set in the view: the year is brought within its bounds, the day within the month.
base::CivilDate withinView(base::CivilDate date);

/// The day before and the day after. January 1, 1900 and December 31, 2100 return themselves.
base::CivilDate dayBefore(base::CivilDate date);
base::CivilDate dayAfter(base::CivilDate date);

} // namespace velmoriax::biorhythm
