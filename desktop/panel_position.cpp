// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/panel_position.h"

#include "desktop/desktop_tray.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <iterator>
#include <memory>
#include <string>
#include <tuple>
#include <vector>
#include <xcb/xcb.h>

namespace velmoriax::desktop {

namespace {

using Edge = platform::TaskBarPosition::Edge;

template<typename Reply>
using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

::xcb_connection_t* x11Connection() {
    auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

::xcb_atom_t atomOf(::xcb_connection_t* connection, const std::string& name) {
    const auto cookie = ::xcb_intern_atom(connection, 1, static_cast<std::uint16_t>(name.size()), name.data());
    const Owned<::xcb_intern_atom_reply_t> reply(::xcb_intern_atom_reply(connection, cookie, nullptr), &std::free);
    return reply ? reply->atom : ::xcb_atom_t{XCB_ATOM_NONE};
}

using Property = std::vector<std::uint32_t>;

/// A property of whole 32-bit numbers; empty when the window has none.
Property propertyOf(::xcb_connection_t* connection, ::xcb_window_t window, ::xcb_atom_t name) {
    constexpr std::uint32_t longest = 1024;
    const auto cookie = ::xcb_get_property(connection, 0, window, name, XCB_ATOM_ANY, 0, longest);
    const Owned<::xcb_get_property_reply_t> reply(::xcb_get_property_reply(connection, cookie, nullptr), &std::free);
    if (!reply || reply->format != 32) return {};
    const auto* first = static_cast<const std::uint32_t*>(::xcb_get_property_value(reply.get()));
    return {first, first + reply->value_len};
}

/// The bands along the edges of the whole desktop that windows keep for themselves, in native pixels.
std::vector<QRect> reservedBands(const QSize& desktop) {
    ::xcb_connection_t* connection = x11Connection();
    const ::xcb_window_t root = ::xcb_setup_roots_iterator(::xcb_get_setup(connection)).data->root;
    const ::xcb_atom_t strut = atomOf(connection, "_NET_WM_STRUT_PARTIAL");
    std::vector<QRect> bands;
    for (const ::xcb_window_t window : propertyOf(connection, root, atomOf(connection, "_NET_CLIENT_LIST"))) {
        const Property p = propertyOf(connection, window, strut);
        if (p.size() < 12) continue;
        const std::vector<int> n(p.begin(), p.end());
        const int right = desktop.width();
        const int bottom = desktop.height();
        if (n[0]) bands.emplace_back(QPoint(0, n[4]), QPoint(n[0] - 1, n[5]));
        if (n[1]) bands.emplace_back(QPoint(right - n[1], n[6]), QPoint(right - 1, n[7]));
        if (n[2]) bands.emplace_back(QPoint(n[8], 0), QPoint(n[9], n[2] - 1));
        if (n[3]) bands.emplace_back(QPoint(n[10], bottom - n[3]), QPoint(n[11], bottom - 1));
    }
    return bands;
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

/// Cuts a band off the edge of the area that it runs along.
QRect without(QRect area, const QRect& band) {
    const QRect cut = area & band;
    if (cut.isEmpty()) return area;
    if (cut.width() >= cut.height()) {
        if (cut.top() == area.top())
            area.setTop(cut.bottom() + 1);
        else
            area.setBottom(cut.top() - 1);
    } else if (cut.left() == area.left()) {
        area.setLeft(cut.right() + 1);
    } else {
        area.setRight(cut.left() - 1);
    }
    return area;
}

QRect workAreaByPanels(const QScreen& screen) {
    QRect area = nativeGeometry(screen);
    for (const QRect& band : reservedBands(nativeDesktopSize())) area = without(area, band);
    const QRect native = nativeGeometry(screen);
    const double ratio = screen.devicePixelRatio();
    return {native.topLeft() + (QPointF(area.topLeft() - native.topLeft()) / ratio).toPoint(),
            (QSizeF(area.size()) / ratio).toSize()};
}

struct Panel {
    Edge edge;
    QRect place;
    int thickness() const { return std::min(place.width(), place.height()); }
};

std::vector<Panel> panelsAround(const QRect& screen, const QRect& work) {
    const std::array<Panel, 4> bands{{
        {Edge::bottomEdge, QRect(QPoint(screen.left(), work.bottom() + 1), screen.bottomRight())},
        {Edge::topEdge, QRect(screen.topLeft(), QPoint(screen.right(), work.top() - 1))},
        {Edge::leftEdge, QRect(screen.topLeft(), QPoint(work.left() - 1, screen.bottom()))},
        {Edge::rightEdge, QRect(QPoint(work.right() + 1, screen.top()), screen.bottomRight())},
    }};
    std::vector<Panel> panels;
    std::ranges::copy_if(bands, std::back_inserter(panels), [](const Panel& band) { return !band.place.isEmpty(); });
    return panels;
}

} // namespace

QRect workAreaOf(const QScreen& screen) {
    const bool onX11 = x11Connection() != nullptr;
    if (!onX11 || QGuiApplication::screens().size() < 2) return screen.availableGeometry();
    return workAreaByPanels(screen);
}

std::optional<platform::TaskBarPosition> PanelPosition::position() const {
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen) return std::nullopt;
    const std::vector<Panel> panels = panelsAround(screen->geometry(), workAreaOf(*screen));
    if (panels.empty()) return std::nullopt;
    const QPoint icon = tray_.geometry().center();
    const auto rank = [&](const Panel& panel) {
        const bool holdsIcon = !tray_.geometry().isEmpty() && panel.place.contains(icon);
        return std::tuple(holdsIcon, panel.edge == Edge::bottomEdge, panel.thickness());
    };
    const Panel& panel = *std::ranges::max_element(panels, {}, rank);
    const QRect& place = panel.place;
    return platform::TaskBarPosition{place.left(), place.top(), place.right() + 1, place.bottom() + 1, panel.edge};
}

} // namespace velmoriax::desktop
