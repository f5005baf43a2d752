// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/task_bar_metrics.h"

namespace velmoriax::shell {

std::string getTaskBarMetrics(const platform::TaskBar& taskBar, ShellState& state) {
    constexpr platform::TaskBarPosition none{0, 0, 0, 0, platform::TaskBarPosition::leftEdge};
    const platform::TaskBarPosition bar = taskBar.position().value_or(none);
    state.taskBarLocation = bar.edge;
    const auto number = [](int value) { return std::to_string(value); };
    return "TaskBarMetrics In Pixels (not twips)\r\n"
           "Left: " +
           number(bar.left) + ", Right: " + number(bar.right) + ", Bottom: " + number(bar.bottom) +
           ", Top: " + number(bar.top) + "\r\nWidth:" + number(bar.right - bar.left) +
           "\r\nHeight:" + number(bar.bottom - bar.top) + "\r\nLocation: " + number(bar.edge) +
           " (0-left, 1-top, 2-right, 3-bottom)";
}

} // namespace velmoriax::shell
