// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/notification.h"
#include "shell/windows/window_context.h"

#include <memory>

namespace velmoriax::desktop {
class DesktopNotification;
}

namespace velmoriax::shell {

/// Shows texts by the desktop's own notifications, where a window cannot choose its place: there ours would come up in
/// the middle of the screen.
class DesktopsOwnNotification : public platform::Notification {
public:
    explicit DesktopsOwnNotification(WindowContext& context);
    ~DesktopsOwnNotification() override;

    /// A new text replaces the one on show.
    void slideUp(const std::string& text) override;
    void show(const std::string& text) override { slideUp(text); }
    void slideDown() override { close(); }
    void close() override;
    bool isOpen() const override { return context_.state.notifOpen; }

private:
    WindowContext& context_;
    std::unique_ptr<desktop::DesktopNotification> notification_;
};

} // namespace velmoriax::shell
