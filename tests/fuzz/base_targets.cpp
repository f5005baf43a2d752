// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/date_text.h"
#include "base/number_text.h"
#include "base/windows1252.h"
#include "fuzz/targets.h"

#include <algorithm>
#include <cmath>

namespace velmoriax::fuzz {

namespace {

bool isContinuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

std::size_t characters(std::string_view utf8) {
    return utf8.size() - static_cast<std::size_t>(std::ranges::count_if(utf8, isContinuation));
}

} // namespace

void dates(std::string_view input) {
    base::monthOfEnglishName(input);
    const auto value = base::readDateTime(input);
    if (!value) return;
    const base::CivilMoment moment = base::civilMomentOf(*value);
    law(base::isValid(moment.date) && base::isValid(moment.time), "what is read is a moment of the calendar");
    law(base::readDateTime(base::generalText(*value)) == value, "the text of a moment reads back");
    law(base::readDateTime(" " + std::string(input) + " ") == value, "spaces around a text do not count");
    law(base::fromLinearDays(base::linearDays(*value)) == *value || std::abs(*value) > 1, "one scale and back");
    law(!base::longDateText(moment.date).empty(), "every date has a long text");
}

void numbers(std::string_view input) {
    const double number = base::leadingNumber(input);
    law(std::isfinite(number), "no text is read as an infinite number");
    const auto single = static_cast<float>(number);
    if (std::isfinite(single))
        law(static_cast<float>(base::leadingNumber(base::plainNumberText(single))) == single,
            "the plain text reads back");
    for (const int decimals : {0, 2, 7}) {
        const std::string text = base::formatFixed(number, decimals);
        const double unit = std::pow(10.0, -decimals);
        const bool near = std::abs(base::leadingNumber(text) - number) <= unit * 0.5000001 + std::abs(number) * 1e-15;
        law(near, "a printed number lies within half a unit of its value");
        law(text.front() != '-' || text.find_first_of("123456789") != text.npos, "no negative zero is printed");
    }
    law(base::formatWholeOrEmpty(number) != "0", "a zero is not printed");
    if (const auto whole = base::wholeNumber(input))
        law(base::wholeNumber(std::to_string(*whole)) == whole, "a whole number reads back");
    law(base::digitSum(input) <= 9 * static_cast<int>(input.size()), "no character counts more than 9");
}

void windows1252(std::string_view input) {
    const std::string text = base::fromWindows1252(input);
    law(base::toWindows1252(text) == input, "every byte of a file comes through memory");
    law(characters(text) == input.size(), "a byte is a character");
    const std::string bytes = base::toWindows1252(input);
    law(bytes.size() <= input.size(), "no character takes more bytes in a file than in memory");
    law(base::toWindows1252(base::fromWindows1252(bytes)) == bytes, "what was written once stays");
    const std::string lower = base::lowerWindows1252(input);
    law(lower.size() == input.size() && base::lowerWindows1252(lower) == lower, "lower case is lower case");
}

} // namespace velmoriax::fuzz
