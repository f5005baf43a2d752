// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/percent.h"

#include <cmath>

namespace velmoriax::base {

float percentOf(float part, float whole) {
    if (part > whole) return -1.0F;
    if (part == 0.0F) return 0.0F;
    const float share = 100.0F * part / whole;
    return std::isfinite(share) ? share : 0.0F;
}

} // namespace velmoriax::base
