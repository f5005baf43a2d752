// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/date_text.h"

#include "base/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <vector>

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

/// The unsigned numbers between single separators; empty when anything else stands there.
std::vector<int> numbersBetween(std::string_view text, char separator) {
    std::vector<int> numbers;
    const char* at = text.data();
    const char* const end = at + text.size();
    while (true) {
        unsigned value = 0;
        const auto [next, error] = std::from_chars(at, end, value);
        if (error != std::errc{} || value > 9999) return {};
        numbers.push_back(static_cast<int>(value));
        if (next == end) return numbers;
        if (*next != separator) return {};
        at = next + 1;
    }
}

std::optional<CivilDate> readDate(std::string_view text) {
    const std::vector<int> fields = numbersBetween(text, '/');
    if (fields.size() != 3) return std::nullopt;
    const CivilDate date{fields[2], fields[0], fields[1]};
    return isValid(date) ? std::optional(date) : std::nullopt;
}

std::optional<CivilTime> readTime(std::string_view text) {
    std::vector<int> fields = numbersBetween(text, ':');
    if (fields.size() == 2) fields.push_back(0);
    if (fields.size() != 3) return std::nullopt;
    const CivilTime time{fields[0], fields[1], fields[2]};
    return isValid(time) ? std::optional(time) : std::nullopt;
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
    const std::size_t blank = whole.find(' ');
    if (blank == std::string_view::npos) {
        if (const auto date = readDate(whole)) return dateValueOf(*date);
        if (const auto time = readTime(whole)) return dateValueOf(*time);
        return std::nullopt;
    }
    const auto date = readDate(whole.substr(0, blank));
    const auto time = readTime(trimmed(whole.substr(blank)));
    if (!date || !time) return std::nullopt;
    return dateValueOf(*date, *time);
}

} // namespace velmoriax::base
