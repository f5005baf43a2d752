// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

namespace velmoriax::platform {

/// Where the desktop's panel is, in pixels of the screen.
struct TaskBarPosition {
    enum Edge { leftEdge = 0, topEdge = 1, rightEdge = 2, bottomEdge = 3 };
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    Edge edge = bottomEdge;
};

class TaskBar {
public:
    virtual ~TaskBar() = default;

    /// Nothing when no panel is known.
    virtual std::optional<TaskBarPosition> position() const = 0;
};

} // namespace velmoriax::platform
