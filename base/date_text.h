// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/date_value.h"

#include <optional>
#include <string>
#include <string_view>

/// Texts of dates and times. They are fixed to English (United States) and never taken from the desktop's settings: the
/// digits of a date make the cards, and texts are compared as literals.
namespace velmoriax::base {

/// "M/D/YYYY" without leading zeros, such as 11/15/2026.
std::string shortDateText(CivilDate date);

/// "H:MM:SS" on a 24-hour clock, no leading zero on the hour.
std::string timeText(CivilTime time);

/// The time text of a date value that may be negative: of its fraction's magnitude.
std::string timeText(DateValue value);

/// Short date, space, time.
std::string generalText(DateValue value);

/// "dddd, mmmm d, yyyy", such as Sunday, November 15, 2026.
std::string longDateText(CivilDate date);

/// "dddd, mmmm d yyyy", such as Sunday, November 15 2026.
std::string longDateTextWithoutComma(CivilDate date);

/// "mmmm d", such as March 20.
std::string monthDayText(CivilDate date);

/// "January" to "December"; the empty text outside 1 to 12.
std::string_view monthNameEnglish(int month);

/// The month of an English name, matched exactly; nothing for any other text.
std::optional<int> monthOfEnglishName(std::string_view name);

/// "Sunday" (1) to "Saturday" (7); the empty text outside.
std::string_view weekdayName(int weekday);

/// The planet of the weekday, Sunday 1: "The Sun", "The Moon", "Mars", "Mercury", "Jupiter", "Venus", "Saturn".
std::string_view weekdayRuler(int weekday);

/// Reads "M/D/YYYY", "H:MM:SS", "H:MM" or a date and a time with spaces between and around them; a time alone is a
/// value below 1. Nothing for any other text and for dates that do not exist.
std::optional<DateValue> readDateTime(std::string_view text);

} // namespace velmoriax::base
