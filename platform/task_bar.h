// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

namespace velmoriax::platform {

/// The rectangle of the desktop's panel in pixels of the screen, right and bottom not included, and its edge.
struct TaskBarPosition {
    enum Edge { leftEdge = 0, topEdge = 1, rightEdge = 2, bottomEdge = 3 };
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    Edge edge = bottomEdge;
    bool operator==(const TaskBarPosition&) const = default;
};

/// The panel of the desktop, which the program calls the task bar.
class TaskBar {
public:
    virtual ~TaskBar() = default;

    /// Nothing when no panel is known.
    virtual std::optional<TaskBarPosition> position() const = 0;
};

} // namespace velmoriax::platform
