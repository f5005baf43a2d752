// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/notification.h"
#include "shell/windows/window_context.h"

namespace velmoriax::shell {

class Notif;

/// Shows texts in the window `Notif`.
class SlidingNotification : public platform::Notification {
public:
    explicit SlidingNotification(WindowContext& context) : context_(context) {}

    /// The first touch of the window slides it up by itself.
    void slideUp(const std::string& text) override;
    void show(const std::string& text) override;
    void slideDown() override;
    void close() override;
    bool isOpen() const override { return context_.state.notifOpen; }

private:
    Notif* window() const;

    WindowContext& context_;
};

} // namespace velmoriax::shell
