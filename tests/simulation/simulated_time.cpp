// SPDX-License-Identifier: GPL-3.0-or-later
// The C library's functions of time, replaced for this test program.
#include "simulated_time.h"

#include <atomic>
#include <ctime>
#include <sys/time.h>

namespace velmoriax::simulation {

namespace {

using namespace std::chrono_literals;

std::atomic<Nanoseconds::rep> passed{0};

/// A time of day is far enough from 0 that nothing takes it for "never".
constexpr Nanoseconds start = 480'000h;

timespec timeSpec(Nanoseconds time) {
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(time);
    return {static_cast<std::time_t>(seconds.count()), static_cast<long>((time - seconds).count())};
}

Nanoseconds durationOf(const timespec& time) {
    return std::chrono::seconds(time.tv_sec) + Nanoseconds(time.tv_nsec);
}

} // namespace

Nanoseconds simulatedTime() {
    return Nanoseconds(passed);
}

void advanceTime(Nanoseconds by) {
    passed += by.count();
}

} // namespace velmoriax::simulation

using velmoriax::simulation::advanceTime;
using velmoriax::simulation::simulatedTime;

extern "C" {

int clock_gettime(clockid_t, timespec* time) noexcept {
    *time = velmoriax::simulation::timeSpec(velmoriax::simulation::start + simulatedTime());
    return 0;
}

int gettimeofday(timeval* time, void*) noexcept {
    const timespec now = velmoriax::simulation::timeSpec(velmoriax::simulation::start + simulatedTime());
    *time = {now.tv_sec, now.tv_nsec / 1000};
    return 0;
}

std::time_t time(std::time_t* time) noexcept {
    const std::time_t now = velmoriax::simulation::timeSpec(velmoriax::simulation::start + simulatedTime()).tv_sec;
    if (time) *time = now;
    return now;
}

int nanosleep(const timespec* duration, timespec*) {
    advanceTime(velmoriax::simulation::durationOf(*duration));
    return 0;
}

int clock_nanosleep(clockid_t, int, const timespec* duration, timespec*) {
    advanceTime(velmoriax::simulation::durationOf(*duration));
    return 0;
}
}
