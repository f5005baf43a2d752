// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velmoriax::platform {

class PendingEvents {
public:
    virtual ~PendingEvents() = default;

    /// Processes the events that wait, timers and other windows included: a handler may be entered again inside.
    virtual void processEvents() = 0;

    /// True while control is inside `processEvents` or a box: what is under way outside of it still needs its windows.
    virtual bool isProcessing() const = 0;
};

} // namespace velmoriax::platform
