// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/notification.h"
#include "platform/qt/desktop_notification.h"
#include "shell/windows/process.h"

#include <memory>

namespace velmoriax::shell {

class Notif;

/// How long what is to be told at the start waits, in milliseconds: the slide would hold up the first window, which is
/// to stand before anything slides over it.
constexpr int untilFirstWindowStandsMs = 250;

/// Tells through the window `Notif`.
class SlidingNotification : public platform::Notification {
public:
    explicit SlidingNotification(Process& process) : process_(process) {}

    /// The first touch of the window slides it up by itself.
    void slideUp(const std::string& text) override;
    void show(const std::string& text) override;
    void slideDown() override;
    void close() override;
    bool isOpen() const override { return process_.record.shell.notifOpen; }

private:
    Notif* window() const;

    Process& process_;
};

/// Tells through the desktop's own notifications, where a window cannot choose its place: there ours would come up in
/// the middle of the screen.
class DesktopsOwnNotification : public platform::Notification {
public:
    explicit DesktopsOwnNotification(Process& process);

    /// A new text takes the place of one that stands.
    void slideUp(const std::string& text) override;
    void show(const std::string& text) override { slideUp(text); }
    void slideDown() override { close(); }
    void close() override;
    bool isOpen() const override { return process_.record.shell.notifOpen; }

private:
    Process& process_;
    desktop::DesktopNotification notification_;
};

/// The one that suits this desktop.
std::unique_ptr<platform::Notification> makeNotification(Process& process);

/// A notification that stands goes into the tray together with the module that is minimised there.
void closeNotification(Process& process);

} // namespace velmoriax::shell
