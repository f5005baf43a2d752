// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/windows/notifications.h"

#include "shell/windows/module_window.h"
#include "shell/windows/notif.h"
#include "shell/windows/window_registry.h"

#include <QGuiApplication>

namespace velmoriax::shell {

Notif* SlidingNotification::window() const {
    return qobject_cast<Notif*>(process_.windows.loaded("Notif"));
}

void SlidingNotification::slideUp(const std::string& text) {
    process_.record.shell.alertText = text;
    if (Notif* notif = window())
        notif->SlideForm(*notif, Notif::up);
    else
        process_.windows.touch("Notif", process_);
}

void SlidingNotification::show(const std::string& text) {
    if (!isOpen()) slideUp(text);
}

void SlidingNotification::slideDown() {
    if (Notif* notif = window()) notif->SlideForm(*notif, Notif::down);
    process_.desktop.events.letRun();
}

void SlidingNotification::close() {
    if (Notif* notif = window()) notif->SlideForm(*notif, Notif::down);
    process_.record.shell.notifOpen = false;
    process_.desktop.events.letRun();
    process_.windows.unload("Notif");
}

DesktopsOwnNotification::DesktopsOwnNotification(Process& process) : process_(process) {
    using desktop::DesktopNotification;
    QObject::connect(&notification_, &DesktopNotification::closed, &notification_,
                     [this] { process_.record.shell.notifOpen = false; });
    QObject::connect(&notification_, &DesktopNotification::chosen, &notification_, [this] {
        if (ModuleWindow* module = process_.windows.loadedModule()) module->returnFromTray();
    });
}

void DesktopsOwnNotification::slideUp(const std::string& text) {
    process_.record.shell.alertText = text;
    process_.record.shell.notifOpen =
        notification_.show(QStringLiteral("Biorhythms alert!"), QString::fromStdString(text));
}

void DesktopsOwnNotification::close() {
    notification_.close();
    process_.record.shell.notifOpen = false;
}

std::unique_ptr<platform::Notification> makeNotification(Process& process) {
    const bool placesWindows = !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
    if (placesWindows) return std::make_unique<SlidingNotification>(process);
    return std::make_unique<DesktopsOwnNotification>(process);
}

void closeNotification(Process& process) {
    if (process.notification && process.notification->isOpen()) process.notification->close();
}

} // namespace velmoriax::shell
