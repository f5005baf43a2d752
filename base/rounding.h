// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace velmoriax::base {

/// The nearest whole number, ties to the even neighbour: the one rounding of the program.
double nearest(double value);

/// `nearest` as a signed 16-bit number. Throws RunTimeError Overflow outside -32768 to 32767 and for what is no number.
std::int16_t nearestInt16(double value);

/// `nearest` as a signed 32-bit number. Throws RunTimeError Overflow outside its range and for what is no number.
std::int32_t nearestInt32(double value);

/// Checked narrowing of an integer sum to 16 bits. Throws RunTimeError Overflow.
std::int16_t toInt16(std::int64_t value);

} // namespace velmoriax::base
