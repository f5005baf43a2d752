// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velmoriax::platform {

/// The events that have not been processed yet, for steps that take long.
class PendingEvents {
public:
    virtual ~PendingEvents() = default;

    /// Processes the events that wait, timers and other windows included: a handler may be entered again inside.
    virtual void processEvents() = 0;

    /// True inside `processEvents` or a box: the function that called it still needs its windows.
    virtual bool isProcessing() const = 0;
};

} // namespace velmoriax::platform
