// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velmoriax::simulation {

class Simulation;

/// Carries out one action by chance, of those that are possible now, and describes it.
std::string runAction(Simulation& simulation);

} // namespace velmoriax::simulation
