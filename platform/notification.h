// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velmoriax::platform {

/// The small window that slides up over the taskbar, to show a message.
class Notification {
public:
    virtual ~Notification() = default;

    /// Slides the window up with a text. One that is shown slides down instead.
    virtual void slideUp(const std::string& text) = 0;

    /// Slides the window up with a text, unless it is shown already: then it stays as it is.
    virtual void show(const std::string& text) = 0;

    /// Slides the window down when its time is over; it stays loaded.
    virtual void slideDown() = 0;

    /// Slides the window down and unloads it.
    virtual void close() = 0;

    /// True while the window is shown and does not slide.
    virtual bool isOpen() const = 0;
};

} // namespace velmoriax::platform
