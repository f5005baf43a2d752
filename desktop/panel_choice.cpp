// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/panel_choice.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <tuple>
#include <vector>

namespace velmoriax::desktop {

namespace {

using Edge = platform::TaskBarPosition::Edge;

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

/// The band along the nearest edge that has the icon in its middle; nothing for an icon in the midst of the screen.
std::optional<Panel> panelAroundIcon(const QRect& screen, const QRect& icon) {
    const QPoint middle = icon.center();
    const std::array<std::pair<Edge, int>, 4> distances{{{Edge::bottomEdge, screen.bottom() - middle.y()},
                                                         {Edge::topEdge, middle.y() - screen.top()},
                                                         {Edge::leftEdge, middle.x() - screen.left()},
                                                         {Edge::rightEdge, screen.right() - middle.x()}}};
    const auto [edge, distance] = *std::ranges::min_element(distances, {}, &std::pair<Edge, int>::second);
    constexpr int thickest = 128;
    const int thickness = 2 * distance + 1;
    if (icon.isEmpty() || !screen.contains(middle) || thickness > thickest) return std::nullopt;
    const QSize lying(screen.width(), thickness), upright(thickness, screen.height());
    switch (edge) {
    case Edge::bottomEdge:
        return Panel{edge, {{screen.left(), screen.bottom() - thickness + 1}, lying}};
    case Edge::topEdge:
        return Panel{edge, {screen.topLeft(), lying}};
    case Edge::leftEdge:
        return Panel{edge, {screen.topLeft(), upright}};
    case Edge::rightEdge:
        break;
    }
    return Panel{edge, {{screen.right() - thickness + 1, screen.top()}, upright}};
}

/// Cuts a band off the edge of the area that it runs along.
QRect withoutBand(QRect area, const QRect& band) {
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

} // namespace

std::vector<QRect> reservedBands(const std::vector<int>& strut, const QSize& desktop) {
    if (strut.size() < 12) return {};
    const auto [left, right, top, bottom] = std::tuple(strut[0], strut[1], strut[2], strut[3]);
    const std::array<QRect, 4> bands{{
        {QPoint(0, strut[4]), QPoint(left - 1, strut[5])},
        {QPoint(desktop.width() - right, strut[6]), QPoint(desktop.width() - 1, strut[7])},
        {QPoint(strut[8], 0), QPoint(strut[9], top - 1)},
        {QPoint(strut[10], desktop.height() - bottom), QPoint(strut[11], desktop.height() - 1)},
    }};
    std::vector<QRect> reserved;
    std::ranges::copy_if(bands, std::back_inserter(reserved), [](const QRect& band) { return !band.isEmpty(); });
    return reserved;
}

QRect workArea(const QRect& screen, double ratio, const std::vector<QRect>& bands) {
    QRect area = screen;
    for (const QRect& band : bands) area = withoutBand(area, band);
    return {screen.topLeft() + (QPointF(area.topLeft() - screen.topLeft()) / ratio).toPoint(),
            (QSizeF(area.size()) / ratio).toSize()};
}

std::optional<platform::TaskBarPosition> panelOf(const QRect& screen, const QRect& work, const QRect& icon) {
    std::vector<Panel> panels = panelsAround(screen, work);
    const auto holdsIcon = [&](const Panel& panel) { return !icon.isEmpty() && panel.place.contains(icon.center()); };
    const auto around = panelAroundIcon(screen, icon);
    if (around && std::ranges::none_of(panels, holdsIcon)) panels.push_back(*around);
    if (panels.empty()) return std::nullopt;
    const auto rank = [&](const Panel& panel) {
        return std::tuple(holdsIcon(panel), panel.edge == Edge::bottomEdge, panel.thickness());
    };
    const Panel& panel = *std::ranges::max_element(panels, {}, rank);
    const QRect& place = panel.place;
    return platform::TaskBarPosition{place.left(), place.top(), place.right() + 1, place.bottom() + 1, panel.edge};
}

} // namespace velmoriax::desktop
