// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/clock.h"
#include "platform/random_source.h"
#include "platform/time_zone.h"

#include <random>

namespace velmoriax::desktop {

class SystemClock : public platform::Clock {
public:
    base::DateValue now() const override;
};

class SystemTimeZone : public platform::TimeZone {
public:
    platform::ZoneInfo current() const override;
};

class ClockRandom : public platform::RandomSource {
public:
    void seedFromClock() override;
    float uniform() override;

private:
    std::minstd_rand engine_;
};

} // namespace velmoriax::desktop
