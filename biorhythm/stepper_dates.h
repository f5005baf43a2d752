// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/date_value.h"

/// What the day, month and year steppers of the view can hold, and the step of a day that its arrows make.
namespace velmoriax::biorhythm {

inline constexpr int firstStepperYear = 1900;
inline constexpr int lastStepperYear = 2100;

/// Upper bound of the day stepper. Every century year counts as a common one, 2000 included, so that 29 February 2000
/// cannot be set: that is how these steppers count, while differences of days go by the true calendar.
int stepperDays(int year, int month);

/// The day brought down to the month's length; month and year stay.
base::CivilDate limitDays(base::CivilDate date);

/// Any existing date as the steppers take it: the year stops at its bounds, the day at the month's length.
base::CivilDate onSteppers(base::CivilDate date);

/// A day back and a day on; the first day of 1900 and the last of 2100 stay.
base::CivilDate stepBack(base::CivilDate date);
base::CivilDate stepOn(base::CivilDate date);

} // namespace velmoriax::biorhythm
