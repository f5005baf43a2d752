// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace velmoriax::tarot {

/// Whether a text as a whole is a number as English (United States) writes one: digits with commas among
/// them, a decimal point, a sign ahead, an exponent, spaces around it. At least one digit is before the
/// exponent. Hexadecimal and currency forms are no numbers here.
bool isNumericText(std::string_view text);

} // namespace velmoriax::tarot
