// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/date_value.h"

#include "base/rounding.h"

#include <chrono>
#include <cmath>

namespace velmoriax::base {

namespace {

using std::chrono::sys_days;

constexpr sys_days zeroDay{std::chrono::year{1899} / 12 / 30};
constexpr int secondsOfDay = 86400;

std::chrono::year_month_day chronoDate(CivilDate date) {
    return {std::chrono::year{date.year}, std::chrono::month{static_cast<unsigned>(date.month)},
            std::chrono::day{static_cast<unsigned>(date.day)}};
}

double timeFraction(CivilTime time) {
    return (time.hour * 3600 + time.minute * 60 + time.second) / static_cast<double>(secondsOfDay);
}

} // namespace

bool isValid(CivilDate date) {
    const bool inRange = date.year >= 100 && date.year <= 9999 && date.month >= 1 && date.month <= 12 && date.day >= 1;
    return inRange && date.day <= daysInMonth(date.year, date.month);
}

bool isValid(CivilTime time) {
    const auto within = [](int value, int end) { return value >= 0 && value < end; };
    return within(time.hour, 24) && within(time.minute, 60) && within(time.second, 60);
}

int daysInMonth(int year, int month) {
    const auto last = std::chrono::year{year} / std::chrono::month{static_cast<unsigned>(month)} / std::chrono::last;
    return static_cast<int>(static_cast<unsigned>(last.day()));
}

std::int32_t dayNumber(CivilDate date) {
    return static_cast<std::int32_t>((sys_days{chronoDate(date)} - zeroDay).count());
}

CivilDate civilDateOfDay(std::int32_t dayNumber) {
    const std::chrono::year_month_day date{zeroDay + std::chrono::days{dayNumber}};
    return {static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
            static_cast<int>(static_cast<unsigned>(date.day()))};
}

std::int32_t daysBetween(CivilDate from, CivilDate to) {
    return dayNumber(to) - dayNumber(from);
}

int weekdayOf(CivilDate date) {
    const std::chrono::weekday day{sys_days{chronoDate(date)}};
    return static_cast<int>(day.c_encoding()) + 1;
}

DateValue dateValueOf(CivilDate date, CivilTime time) {
    const double day = dayNumber(date);
    return day < 0 ? day - timeFraction(time) : day + timeFraction(time);
}

DateValue dateValueOf(CivilTime time) {
    return timeFraction(time);
}

CivilMoment civilMomentOf(DateValue value) {
    const double day = std::trunc(value);
    auto number = static_cast<std::int32_t>(day);
    int seconds = static_cast<int>(nearest(std::abs(value - day) * secondsOfDay));
    if (seconds == secondsOfDay) {
        seconds = 0;
        ++number;
    }
    return {civilDateOfDay(number), {seconds / 3600, seconds / 60 % 60, seconds % 60}};
}

CivilDate civilDateOf(DateValue value) {
    return civilMomentOf(value).date;
}

CivilTime civilTimeOf(DateValue value) {
    return civilMomentOf(value).time;
}

double linearDays(DateValue value) {
    const double day = std::trunc(value);
    return day + std::abs(value - day);
}

DateValue fromLinearDays(double days) {
    const double day = std::floor(days);
    const double time = days - day;
    return day < 0 ? day - time : day + time;
}

bool isBefore(DateValue a, DateValue b) {
    return linearDays(a) < linearDays(b);
}

DateValue addMinutes(DateValue value, double minutes) {
    return fromLinearDays(linearDays(value) + minutes / 1440.0);
}

} // namespace velmoriax::base
