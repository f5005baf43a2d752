// SPDX-License-Identifier: GPL-3.0-or-later
#include "sky/julian_day.h"

#include <cmath>

namespace velmoriax::sky {

namespace {

constexpr JulianDay firstDay = 1757593.50001;
constexpr JulianDay lastDay = 5373484.49998843;
constexpr JulianDay reformDay = 2299160.5;      ///< October 15, 1582
constexpr base::DateValue reformDate = -115858; ///< the same day as a date value
constexpr JulianDay zeroDate = 2415018.5;       ///< 1899-12-30, the date value 0
constexpr double reformDays = 10;

} // namespace

JulianDay julianDayFromDate(base::DateValue date) {
    if (date >= 0) return date + zeroDate;
    const double day = std::trunc(date);
    const double negatedTime = date - day;
    const double midday = zeroDate - 0.5;
    const double base = day >= reformDate ? day + midday : day + midday + reformDays;
    return base + 0.5 - negatedTime;
}

bool julianDayInRange(JulianDay day) {
    return !(day < firstDay || day > lastDay);
}

base::DateValue dateFromJulianDay(JulianDay day) {
    if (!julianDayInRange(day)) return 0;
    const double linear = day - (day < reformDay ? zeroDate + reformDays : zeroDate);
    // The threshold is two days late: everything below it is taken for a negative date.
    if (day >= zeroDate + 2) return linear;
    const double fraction = linear - std::trunc(linear);
    if (fraction == 0) return std::trunc(linear);
    return std::trunc(linear - 3) + (1 - fraction);
}

} // namespace velmoriax::sky
