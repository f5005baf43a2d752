// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>

/// The time that the process sees: the toolkit's timers, elapsed times and sleeps. It passes only when a simulation
/// advances it and when the program sleeps, so that a run depends on nothing outside.
namespace velmoriax::simulation {

using Nanoseconds = std::chrono::nanoseconds;

/// Since the start of the process.
Nanoseconds simulatedTime();

void advanceTime(Nanoseconds by);

} // namespace velmoriax::simulation
