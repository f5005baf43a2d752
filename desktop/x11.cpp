// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/x11.h"

#include <QGuiApplication>

namespace velmoriax::desktop {

::xcb_connection_t* x11Connection() {
    // The offscreen platform has the interface as well, without a connection.
    auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

::xcb_atom_t x11Atom(::xcb_connection_t* connection, const std::string& name) {
    const auto cookie = ::xcb_intern_atom(connection, 1, static_cast<std::uint16_t>(name.size()), name.data());
    const XcbReply<::xcb_intern_atom_reply_t> reply(::xcb_intern_atom_reply(connection, cookie, nullptr), &std::free);
    return reply ? reply->atom : ::xcb_atom_t{XCB_ATOM_NONE};
}

} // namespace velmoriax::desktop
