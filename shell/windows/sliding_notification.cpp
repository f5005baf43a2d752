// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/windows/sliding_notification.h"

#include "shell/windows/notif.h"
#include "shell/windows/window_registry.h"

namespace velmoriax::shell {

Notif* SlidingNotification::window() const {
    return context_.windows.loaded<Notif>();
}

void SlidingNotification::slideUp(const std::string& text) {
    context_.state.notificationText = text;
    if (Notif* notif = window())
        notif->SlideForm(*notif, Notif::up);
    else
        context_.windows.touch<Notif>();
}

void SlidingNotification::show(const std::string& text) {
    if (!isOpen()) slideUp(text);
}

void SlidingNotification::slideDown() {
    if (Notif* notif = window()) notif->SlideForm(*notif, Notif::down);
    context_.desktop.events.processEvents();
}

void SlidingNotification::close() {
    if (Notif* notif = window()) notif->dismiss();
}

} // namespace velmoriax::shell
