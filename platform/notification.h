// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velmoriax::platform {

/// The small window that slides up over the taskbar, as those see it who have something to tell.
class Notification {
public:
    virtual ~Notification() = default;

    /// Slides the window up with a text.
    virtual void slideUp(const std::string& text) = 0;

    /// True while the window stands fully up.
    virtual bool isOpen() const = 0;
};

} // namespace velmoriax::platform
