// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/tray_probe.h"

#include "desktop/x11.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QFileInfo>

#include <cstdlib>
#include <unistd.h>

namespace velmoriax::desktop {

namespace {

constexpr int answerWithinMs = 500;

bool itemHostIsThere() {
    if (!sessionBusExists()) return false;
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected() || !bus.interface()->isServiceRegistered(itemWatcherService)) return false;
    QDBusMessage question = QDBusMessage::createMethodCall(
        itemWatcherService, itemWatcherPath, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    question << QString(itemWatcherService) << QStringLiteral("IsStatusNotifierHostRegistered");
    const QDBusMessage answer = bus.call(question, QDBus::Block, answerWithinMs);
    if (answer.type() != QDBusMessage::ReplyMessage || answer.arguments().isEmpty()) return false;
    return answer.arguments().constFirst().value<QDBusVariant>().variant().toBool();
}

bool x11TrayIsThere() {
    ::xcb_connection_t* connection = x11Connection();
    const ::xcb_atom_t tray = connection ? x11Atom(connection, "_NET_SYSTEM_TRAY_S0") : ::xcb_atom_t{XCB_ATOM_NONE};
    if (tray == XCB_ATOM_NONE) return false;
    const auto cookie = ::xcb_get_selection_owner(connection, tray);
    const XcbReply<::xcb_get_selection_owner_reply_t> owner(
        ::xcb_get_selection_owner_reply(connection, cookie, nullptr), &std::free);
    return owner && owner->owner != XCB_WINDOW_NONE;
}

} // namespace

bool sessionBusExists() {
    if (std::getenv("DBUS_SESSION_BUS_ADDRESS")) return true;
    return QFileInfo::exists(QStringLiteral("/run/user/%1/bus").arg(::getuid()));
}

bool trayIsThere(TrayKind kind) {
    return kind == TrayKind::item ? itemHostIsThere() : x11TrayIsThere();
}

std::optional<TrayKind> trayThatIsThere() {
    for (const TrayKind kind : {TrayKind::item, TrayKind::window})
        if (trayIsThere(kind)) return kind;
    return std::nullopt;
}

} // namespace velmoriax::desktop
