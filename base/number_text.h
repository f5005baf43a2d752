// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace velmoriax::base {

/// The format "0.00" and its like: `decimals` (0 to 12) places after the point, a zero before it, a leading minus when
/// negative but never on a zero. Rounds half away from zero on the value's exact decimal expansion, so that 0.125
/// becomes 0.13 and 1.005, which is below the half in binary, becomes 1.00.
std::string formatFixed(double value, int decimals);

/// The format "###": the whole number, rounded as `formatFixed` rounds, and the empty text for what rounds to 0.
std::string formatWholeOrEmpty(double value);

/// The plain text of a 32-bit number: the shortest digits that read back, no exponent.
std::string plainNumberText(float value);

/// The leading number of a text (sign, digits, one decimal point; spaces before it are skipped), 0 when there is none.
double leadingNumber(std::string_view text);

/// The whole of a text as a decimal integer with spaces around it; nothing for any other text.
std::optional<long> wholeNumber(std::string_view text);

/// The sum of the digits 0 to 9 of a text; every other character counts 0.
int digitSum(std::string_view text);

} // namespace velmoriax::base
