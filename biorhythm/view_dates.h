// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/date_value.h"

/// What the day, month and year spin boxes of the view can hold, and the step of a day that its arrows make.
namespace velmoriax::biorhythm {

inline constexpr int firstViewYear = 1900;
inline constexpr int lastViewYear = 2100;

/// Upper bound of the day spin box. Every century year counts as a common one, 2000 included, so that 29 February 2000
/// cannot be set: that is how these spin boxes count, while differences of days go by the true calendar.
int daysInViewMonth(int year, int month);

/// The rule of `limitDaysBirth` and `limitDaysBio`: the day brought down to the month's length; month and year stay.
base::CivilDate limitDays(base::CivilDate date);

/// Any existing date as the spin boxes take it: the year stops at its bounds, the day at the month's length.
base::CivilDate withinView(base::CivilDate date);

/// A day back and a day on; the first day of 1900 and the last of 2100 stay.
base::CivilDate stepBack(base::CivilDate date);
base::CivilDate stepOn(base::CivilDate date);

} // namespace velmoriax::biorhythm
