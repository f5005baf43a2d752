// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/panel_position.h"

#include "desktop/panel_choice.h"
#include "desktop/tray.h"
#include "desktop/x11.h"

#include <QGuiApplication>
#include <QScreen>

#include <vector>

namespace velmoriax::desktop {

namespace {

using Property = std::vector<std::uint32_t>;

/// A property of whole 32-bit numbers; empty when the window has none.
Property propertyOf(::xcb_connection_t* connection, ::xcb_window_t window, ::xcb_atom_t name) {
    constexpr std::uint32_t longest = 1024;
    const auto cookie = ::xcb_get_property(connection, 0, window, name, XCB_ATOM_ANY, 0, longest);
    const XcbReply<::xcb_get_property_reply_t> reply(::xcb_get_property_reply(connection, cookie, nullptr), &std::free);
    if (!reply || reply->format != 32) return {};
    const auto* first = static_cast<const std::uint32_t*>(::xcb_get_property_value(reply.get()));
    return {first, first + reply->value_len};
}

/// The bands along the edges of the desktop that all windows reserve, in native pixels.
std::vector<QRect> allReservedBands(const QSize& desktop) {
    ::xcb_connection_t* connection = x11Connection();
    const ::xcb_window_t root = ::xcb_setup_roots_iterator(::xcb_get_setup(connection)).data->root;
    const ::xcb_atom_t strut = x11Atom(connection, "_NET_WM_STRUT_PARTIAL");
    std::vector<QRect> all;
    for (const ::xcb_window_t window : propertyOf(connection, root, x11Atom(connection, "_NET_CLIENT_LIST"))) {
        const Property numbers = propertyOf(connection, window, strut);
        const auto bands = reservedBands({numbers.begin(), numbers.end()}, desktop);
        all.insert(all.end(), bands.begin(), bands.end());
    }
    return all;
}

/// The screen in native pixels: its corner is the same in both, its size is not.
QRect nativeGeometry(const QScreen& screen) {
    return {screen.geometry().topLeft(), (QSizeF(screen.size()) * screen.devicePixelRatio()).toSize()};
}

QSize nativeDesktopSize() {
    QRect all;
    for (const QScreen* screen : QGuiApplication::screens()) all |= nativeGeometry(*screen);
    return QSize(all.right() + 1, all.bottom() + 1);
}

} // namespace

QRect workAreaOf(const QScreen& screen) {
    const bool onX11 = x11Connection() != nullptr;
    if (!onX11 || QGuiApplication::screens().size() < 2) return screen.availableGeometry();
    return workArea(nativeGeometry(screen), screen.devicePixelRatio(), allReservedBands(nativeDesktopSize()));
}

std::optional<platform::TaskBarPosition> PanelPosition::position() const {
    const QRect icon = tray_.geometry();
    const QScreen* screen = icon.isEmpty() ? nullptr : QGuiApplication::screenAt(icon.center());
    if (!screen) screen = QGuiApplication::primaryScreen();
    if (!screen) return std::nullopt;
    return panelOf(screen->geometry(), workAreaOf(*screen), icon);
}

} // namespace velmoriax::desktop
