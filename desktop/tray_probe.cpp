// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/tray_probe.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QFileInfo>
#include <QGuiApplication>

#include <cstdlib>
#include <memory>
#include <string>
#include <unistd.h>
#include <xcb/xcb.h>

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

template<typename Reply>
using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

bool x11TrayIsThere() {
    auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    // The platform that draws to nowhere has the interface as well, without a connection behind it.
    ::xcb_connection_t* connection = x11 ? x11->connection() : nullptr;
    if (!connection) return false;
    const std::string name = "_NET_SYSTEM_TRAY_S0";
    const auto atomCookie = ::xcb_intern_atom(connection, 1, static_cast<std::uint16_t>(name.size()), name.data());
    const Owned<::xcb_intern_atom_reply_t> atom(::xcb_intern_atom_reply(connection, atomCookie, nullptr), &std::free);
    if (!atom || atom->atom == XCB_ATOM_NONE) return false;
    const auto ownerCookie = ::xcb_get_selection_owner(connection, atom->atom);
    const Owned<::xcb_get_selection_owner_reply_t> owner(
        ::xcb_get_selection_owner_reply(connection, ownerCookie, nullptr), &std::free);
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
