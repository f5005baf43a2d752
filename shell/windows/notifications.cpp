// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/windows/notifications.h"

#include "shell/windows/own_notification.h"
#include "shell/windows/sliding_notification.h"

#include <QGuiApplication>

namespace velmoriax::shell {

std::unique_ptr<platform::Notification> makeNotification(WindowContext& context) {
    const bool placesWindows = !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
    if (placesWindows) return std::make_unique<SlidingNotification>(context);
    return std::make_unique<DesktopsOwnNotification>(context);
}

void closeNotification(WindowContext& context) {
    if (context.notification && context.notification->isOpen()) context.notification->close();
}

} // namespace velmoriax::shell
