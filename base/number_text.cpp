// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/number_text.h"

#include "base/text_lines.h"

#include <array>
#include <cassert>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>

namespace velmoriax::base {

namespace {

/// A binary fraction is exactly half way between two texts of d decimals when it ends at the binary place d + 1:
/// then, and only then, its decimal expansion ends in a 5 at the decimal place d + 1.
bool isHalfWay(double value, int decimals) {
    const double scaled = std::ldexp(value, decimals + 1);
    return std::abs(scaled) < 0x1p53 && scaled == std::trunc(scaled) && std::fmod(scaled, 2.0) != 0.0;
}

double awayFromZero(double value) {
    return std::nextafter(value, std::copysign(std::numeric_limits<double>::infinity(), value));
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

} // namespace

std::string formatFixed(double value, int decimals) {
    assert(decimals >= 0 && decimals <= 12);
    // The C library rounds the exact expansion, with ties to even: a value on the half is moved off it first.
    const double printed = isHalfWay(value, decimals) ? awayFromZero(value) : value;
    std::array<char, 400> buffer{};
    const int length = std::snprintf(buffer.data(), buffer.size(), "%.*f", decimals, printed);
    std::string text(buffer.data(), static_cast<std::size_t>(length));
    const bool isZero = text.find_first_of("123456789") == std::string::npos;
    return isZero && text.front() == '-' ? text.substr(1) : text;
}

std::string formatWholeOrEmpty(double value) {
    const std::string text = formatFixed(value, 0);
    return text == "0" ? std::string{} : text;
}

std::string plainNumberText(float value) {
    std::array<char, 64> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed);
    return {buffer.data(), result.ptr};
}

double leadingNumber(std::string_view text) {
    const std::size_t start = text.find_first_not_of(' ');
    if (start == std::string_view::npos) return 0;
    std::size_t end = start;
    if (text[end] == '-' || text[end] == '+') ++end;
    bool pointSeen = false;
    while (end < text.size() && (isDigit(text[end]) || (text[end] == '.' && !pointSeen))) {
        pointSeen = pointSeen || text[end] == '.';
        ++end;
    }
    const std::size_t first = text[start] == '+' ? start + 1 : start;
    double value = 0;
    std::from_chars(text.data() + first, text.data() + end, value, std::chars_format::fixed);
    return value;
}

std::optional<long> wholeNumber(std::string_view text) {
    const std::string_view digits = trimmed(text);
    long value = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (result.ec != std::errc{} || result.ptr != digits.data() + digits.size()) return std::nullopt;
    return value;
}

int digitSum(std::string_view text) {
    int sum = 0;
    for (const char c : text)
        if (isDigit(c)) sum += c - '0';
    return sum;
}

} // namespace velmoriax::base
