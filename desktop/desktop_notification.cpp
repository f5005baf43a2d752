// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/desktop_notification.h"

#include "desktop/tray_probe.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QGuiApplication>

#include <utility>

namespace velmoriax::desktop {

namespace {

const QString service = QStringLiteral("org.freedesktop.Notifications");
const QString path = QStringLiteral("/org/freedesktop/Notifications");
constexpr int answerWithinMs = 1000;
constexpr int openMs = 30000; ///< as long as the program's own window is open
constexpr uchar normalUrgency = 1;

QDBusMessage callTo(const QString& method) {
    return QDBusMessage::createMethodCall(service, path, service, method);
}

/// The body is read as markup.
QString escaped(const QString& text) {
    return text.toHtmlEscaped().remove(u'\r');
}

} // namespace

DesktopNotification::DesktopNotification(QObject* parent) : QObject(parent) {}

void DesktopNotification::follow() {
    if (std::exchange(following_, true)) return;
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.connect(service, path, service, QStringLiteral("ActionInvoked"), this, SLOT(onActionInvoked(uint, QString)));
    bus.connect(service, path, service, QStringLiteral("NotificationClosed"), this,
                SLOT(onNotificationClosed(uint, uint)));
}

bool DesktopNotification::show(const QString& title, const QString& text) {
    if (!sessionBusExists()) return false;
    follow();
    const QVariantMap hints{{QStringLiteral("desktop-entry"), QGuiApplication::desktopFileName()},
                            {QStringLiteral("urgency"), QVariant::fromValue(normalUrgency)}};
    const QStringList actions{QStringLiteral("default"), QStringLiteral("Open"), QStringLiteral("open"),
                              QStringLiteral("Open Velmoriax")};
    QDBusMessage call = callTo(QStringLiteral("Notify"));
    call << QGuiApplication::applicationDisplayName() << id_ << QStringLiteral("velmoriax") << title << escaped(text)
         << actions << hints << openMs;
    const QDBusMessage answer = QDBusConnection::sessionBus().call(call, QDBus::Block, answerWithinMs);
    const bool shown = answer.type() == QDBusMessage::ReplyMessage && !answer.arguments().isEmpty();
    id_ = shown ? answer.arguments().constFirst().toUInt() : 0;
    return shown;
}

void DesktopNotification::close() {
    if (id_ == 0) return;
    QDBusMessage call = callTo(QStringLiteral("CloseNotification"));
    call << std::exchange(id_, 0);
    QDBusConnection::sessionBus().send(call);
}

void DesktopNotification::onActionInvoked(uint id, const QString&) {
    if (id == id_) Q_EMIT chosen();
}

void DesktopNotification::onNotificationClosed(uint id, uint) {
    if (id != id_ || id == 0) return;
    id_ = 0;
    Q_EMIT closed();
}

} // namespace velmoriax::desktop
