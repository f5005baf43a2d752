// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/view_dates.h"

#include <algorithm>
#include <array>

namespace velmoriax::biorhythm {

namespace {

constexpr std::array<int, 12> monthDays{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
constexpr base::CivilDate firstDay{firstViewYear, 1, 1};
constexpr base::CivilDate lastDay{lastViewYear, 12, 31};

} // namespace

int daysInViewMonth(int year, int month) {
    const bool leap = month == 2 && year % 4 == 0 && year % 100 != 0;
    return monthDays.at(static_cast<std::size_t>(month - 1)) + (leap ? 1 : 0);
}

base::CivilDate limitDays(base::CivilDate date) {
    return {date.year, date.month, std::min(date.day, daysInViewMonth(date.year, date.month))};
}

base::CivilDate withinView(base::CivilDate date) {
    return limitDays({std::clamp(date.year, firstViewYear, lastViewYear), date.month, date.day});
}

base::CivilDate dayBefore(base::CivilDate date) {
    if (date <= firstDay) return firstDay;
    if (date.day > 1) return {date.year, date.month, date.day - 1};
    if (date.month > 1) return {date.year, date.month - 1, daysInViewMonth(date.year, date.month - 1)};
    return {date.year - 1, 12, 31};
}

base::CivilDate dayAfter(base::CivilDate date) {
    if (date >= lastDay) return lastDay;
    if (date.day < daysInViewMonth(date.year, date.month)) return {date.year, date.month, date.day + 1};
    if (date.month < 12) return {date.year, date.month + 1, 1};
    return {date.year + 1, 1, 1};
}

} // namespace velmoriax::biorhythm
