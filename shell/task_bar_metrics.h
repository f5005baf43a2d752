// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/task_bar.h"
#include "shell/shell_state.h"

#include <string>

namespace velmoriax::shell {

/// Asks the desktop for its panel and leaves the edge in `taskBarLocation`, 0 when no panel is known. Returns a report
/// of the measures, in pixels, for whoever wants to read it.
std::string getTaskBarMetrics(const platform::TaskBar& taskBar, ShellState& state);

} // namespace velmoriax::shell
