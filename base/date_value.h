// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <compare>
#include <cstdint>

namespace velmoriax::base {

/// Whole days since 1899-12-30 00:00 with the time of day as fraction. Before that day the whole part counts days and
/// the magnitude of the fraction is the time of day, so -2.75 is 1899-12-28 18:00. Proleptic Gregorian, years 100 to
/// 9999. A date value carries no zone: the context says whether it is local or universal time.
using DateValue = double;

struct CivilDate {
    int year = 1899;
    int month = 12; ///< 1 to 12
    int day = 30;   ///< 1 to the month's length
    auto operator<=>(const CivilDate&) const = default;
};

struct CivilTime {
    int hour = 0;
    int minute = 0;
    int second = 0;
    auto operator<=>(const CivilTime&) const = default;
};

struct CivilMoment {
    CivilDate date;
    CivilTime time;
    auto operator<=>(const CivilMoment&) const = default;
};

/// True for a date that exists in the years 100 to 9999.
bool isValid(CivilDate date);

/// True for an hour of 0 to 23 and a minute and second of 0 to 59.
bool isValid(CivilTime time);

/// Length of a month of the true Gregorian calendar.
int daysInMonth(int year, int month);

/// Days since 1899-12-30 of a valid date, negative before it.
std::int32_t dayNumber(CivilDate date);

/// The inverse of `dayNumber`.
CivilDate civilDateOfDay(std::int32_t dayNumber);

/// True calendar days from one date to the other, negative when `to` is earlier.
std::int32_t daysBetween(CivilDate from, CivilDate to);

/// Day of the week, Sunday 1 to Saturday 7.
int weekdayOf(CivilDate date);

/// The date value of a valid moment.
DateValue dateValueOf(CivilDate date, CivilTime time = {});

/// The time of day as a date value between 0 and 1.
DateValue dateValueOf(CivilTime time);

/// Calendar fields of a date value, to the nearest second; 23:59:59.6 carries into the next day.
CivilMoment civilMomentOf(DateValue value);
CivilDate civilDateOf(DateValue value);
CivilTime civilTimeOf(DateValue value);

/// The days of a date value on one unbroken scale (18:00 of the day -2 is -1.25), for differences and shifts.
double linearDays(DateValue value);

/// The inverse of `linearDays`.
DateValue fromLinearDays(double days);

/// The order in time. The plain comparison turns it around within a day before 1899-12-30.
bool isBefore(DateValue a, DateValue b);

/// The date value moved by minutes, across days and across the zero day alike.
DateValue addMinutes(DateValue value, double minutes);

} // namespace velmoriax::base
