// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "simulation.h"

namespace velmoriax::simulation {

/// How a run ended.
struct Outcome {
    std::string wrong; ///< the law that was broken, or how the process died; empty when all is well
    std::vector<std::string> trace;
    std::string traceText() const;
};

/// Runs a sequence in a process of its own, so that a crash is an outcome as well.
Outcome runApart(const Sequence& steps);

/// The kilobytes that are allocated after so many days, and after twelve times as many; empty when a law was broken.
std::vector<std::size_t> allocatedAfter(int days);

/// The outcome of the shortest sequence found that goes wrong in the same way, by leaving out steps.
Outcome shortened(Sequence steps, Outcome outcome);

} // namespace velmoriax::simulation
