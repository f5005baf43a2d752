// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/rounding.h"

#include "base/run_time_error.h"

#include <cmath>
#include <limits>

namespace velmoriax::base {

namespace {

template<typename Integer>
Integer nearestAs(double value) {
    const double rounded = nearest(value);
    const bool fits = rounded >= static_cast<double>(std::numeric_limits<Integer>::min()) &&
                      rounded <= static_cast<double>(std::numeric_limits<Integer>::max());
    if (!fits) throw RunTimeError(RunTimeError::Code::overflow);
    return static_cast<Integer>(rounded);
}

} // namespace

double nearest(double value) {
    return std::nearbyint(value);
}

std::int16_t nearestInt16(double value) {
    return nearestAs<std::int16_t>(value);
}

std::int32_t nearestInt32(double value) {
    return nearestAs<std::int32_t>(value);
}

std::int16_t toInt16(std::int64_t value) {
    if (value < std::numeric_limits<std::int16_t>::min() || value > std::numeric_limits<std::int16_t>::max())
        throw RunTimeError(RunTimeError::Code::overflow);
    return static_cast<std::int16_t>(value);
}

} // namespace velmoriax::base
