// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/clock_seeded_random.h"

#include <chrono>

namespace velmoriax::desktop {

void ClockSeededRandom::seedFromClock() {
    const auto ticks = std::chrono::system_clock::now().time_since_epoch().count();
    engine_.seed(static_cast<std::minstd_rand::result_type>(ticks ^ (ticks >> 32)));
    engine_.discard(8);
}

float ClockSeededRandom::uniform() {
    return std::uniform_real_distribution<float>(0.0F, 0.99999994F)(engine_);
}

} // namespace velmoriax::desktop
