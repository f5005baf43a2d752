// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/date_text.h"

#include "base/number_text.h"
#include "base/text_lines.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace velmoriax::base {

namespace {

constexpr std::array<std::string_view, 12> monthNames{"January",   "February", "March",    "April",
                                                      "May",       "June",     "July",     "August",
                                                      "September", "October",  "November", "December"};
constexpr std::array<std::string_view, 7> weekdayNames{"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                       "Thursday", "Friday", "Saturday"};
constexpr std::array<std::string_view, 7> weekdayRulers{"The Sun", "The Moon", "Mars",  "Mercury",
                                                        "Jupiter", "Venus",    "Saturn"};

template<std::size_t Size>
std::string_view entry(const std::array<std::string_view, Size>& table, int number) {
    const auto index = static_cast<std::size_t>(number - 1);
    return number >= 1 && index < Size ? table[index] : std::string_view{};
}

std::string twoDigits(int number) {
    return (number < 10 ? "0" : "") + std::to_string(number);
}

/// Up to three unsigned numbers; 0 of them when a text holds anything else.
struct Fields {
    std::array<int, 3> values{};
    std::size_t count = 0;
};

/// The numbers between single separators.
Fields numbersBetween(std::string_view text, char separator) {
    Fields fields;
    const char* at = text.data();
    const char* const end = at + text.size();
    while (fields.count < fields.values.size()) {
        unsigned value = 0;
        const auto [next, error] = std::from_chars(at, end, value);
        if (error != std::errc{} || value > 9999) return {};
        fields.values[fields.count++] = static_cast<int>(value);
        if (next == end) return fields;
        if (*next != separator) return {};
        at = next + 1;
    }
    return {};
}

std::optional<CivilDate> readDate(std::string_view text) {
    const auto [values, count] = numbersBetween(text, '/');
    const CivilDate date{values[2], values[0], values[1]};
    return count == 3 && isValid(date) ? std::optional(date) : std::nullopt;
}

/// The seconds may be missing and are 0 then.
std::optional<CivilTime> readTime(std::string_view text) {
    const auto [values, count] = numbersBetween(text, ':');
    const CivilTime time{values[0], values[1], values[2]};
    return count >= 2 && isValid(time) ? std::optional(time) : std::nullopt;
}

} // namespace

std::string shortDateText(CivilDate date) {
    return std::to_string(date.month) + "/" + std::to_string(date.day) + "/" + std::to_string(date.year);
}

std::string timeText(CivilTime time) {
    return std::to_string(time.hour) + ":" + twoDigits(time.minute) + ":" + twoDigits(time.second);
}

std::string timeText(DateValue value) {
    return timeText(civilTimeOf(value));
}

std::string generalText(DateValue value) {
    const CivilMoment moment = civilMomentOf(value);
    return shortDateText(moment.date) + " " + timeText(moment.time);
}

std::string longDateText(CivilDate date) {
    return std::string(weekdayName(weekdayOf(date))) + ", " + monthDayText(date) + ", " + std::to_string(date.year);
}

std::string longDateTextWithoutComma(CivilDate date) {
    return std::string(weekdayName(weekdayOf(date))) + ", " + monthDayText(date) + " " + std::to_string(date.year);
}

std::string monthDayText(CivilDate date) {
    return std::string(monthNameEnglish(date.month)) + " " + std::to_string(date.day);
}

std::string_view monthNameEnglish(int month) {
    return entry(monthNames, month);
}

std::optional<int> monthOfEnglishName(std::string_view name) {
    const auto* found = std::ranges::find(monthNames, name);
    if (found == monthNames.end()) return std::nullopt;
    return static_cast<int>(found - monthNames.begin()) + 1;
}

std::string_view weekdayName(int weekday) {
    return entry(weekdayNames, weekday);
}

std::string_view weekdayRuler(int weekday) {
    return entry(weekdayRulers, weekday);
}

std::optional<DateValue> readDateTime(std::string_view text) {
    const std::string_view whole = trimmed(text);
    const std::size_t space = whole.find(' ');
    if (space == std::string_view::npos) {
        if (const auto date = readDate(whole)) return dateValueOf(*date);
        if (const auto time = readTime(whole)) return dateValueOf(*time);
        return std::nullopt;
    }
    const auto date = readDate(whole.substr(0, space));
    const auto time = readTime(trimmed(whole.substr(space)));
    if (!date || !time) return std::nullopt;
    return dateValueOf(*date, *time);
}

} // namespace velmoriax::base
