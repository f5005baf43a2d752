// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/date_value.h"

namespace velmoriax::sky {

/// Days of the astronomers' unbroken count, which begin at noon.
using JulianDay = double;

/// The Julian day of a date value in universal time. Before October 15, 1582 the date is shifted by a flat ten days; no
/// century correction is made for the older Julian calendar.
JulianDay julianDayFromDate(base::DateValue date);

/// True from 1757593.50001 to 5373484.49998843, about the years 100 to 9999.
bool julianDayInRange(JulianDay day);

/// The date value of a Julian day, 0 when it is out of range. The first two days of the count (date values 0 to 2) are
/// computed like the negative dates as well and are wrong there.
base::DateValue dateFromJulianDay(JulianDay day);

} // namespace velmoriax::sky
