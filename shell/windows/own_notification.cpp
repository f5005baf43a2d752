// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/windows/own_notification.h"

#include "desktop/desktop_notification.h"
#include "shell/windows/module_window.h"
#include "widgets/conversions.h"

namespace velmoriax::shell {

DesktopsOwnNotification::DesktopsOwnNotification(WindowContext& context) :
    context_(context), notification_(std::make_unique<desktop::DesktopNotification>()) {
    using desktop::DesktopNotification;
    QObject::connect(notification_.get(), &DesktopNotification::closed, notification_.get(),
                     [this] { context_.state.notifOpen = false; });
    QObject::connect(notification_.get(), &DesktopNotification::chosen, notification_.get(), [this] {
        if (ModuleWindow* module = ModuleWindow::loadedIn(context_.windows)) module->returnFromTray();
    });
}

DesktopsOwnNotification::~DesktopsOwnNotification() = default;

void DesktopsOwnNotification::slideUp(const std::string& text) {
    context_.state.notificationText = text;
    context_.state.notifOpen = notification_->show(QStringLiteral("Biorhythms alert!"), widgets::qtText(text));
}

void DesktopsOwnNotification::close() {
    notification_->close();
    context_.state.notifOpen = false;
}

} // namespace velmoriax::shell
