// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/random_source.h"

#include <random>

namespace velmoriax::desktop {

/// Random numbers whose seed is taken from the clock.
class ClockSeededRandom : public platform::RandomSource {
public:
    void seedFromClock() override;
    float uniform() override;

private:
    std::minstd_rand engine_;
};

} // namespace velmoriax::desktop
