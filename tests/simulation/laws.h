// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

namespace velmoriax::simulation {

class Simulation;

/// The first law that does not hold between two steps, when control is back, with what was found.
std::optional<std::string> brokenLaw(Simulation& simulation);

/// The same for the laws that hold at every moment, where the program processes events as well.
std::optional<std::string> brokenLawInside(Simulation& simulation);

/// Lets the program rest, then checks that a notification is closed in time, and that the next rest on the icon shows a
/// tip.
std::optional<std::string> brokenAfterRest(Simulation& simulation);

} // namespace velmoriax::simulation
