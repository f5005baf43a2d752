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
    const std::vector<Panel> panels = panelsAround(screen, work);
    if (panels.empty()) return std::nullopt;
    const auto rank = [&](const Panel& panel) {
        const bool holdsIcon = !icon.isEmpty() && panel.place.contains(icon.center());
        return std::tuple(holdsIcon, panel.edge == Edge::bottomEdge, panel.thickness());
    };
    const Panel& panel = *std::ranges::max_element(panels, {}, rank);
    const QRect& place = panel.place;
    return platform::TaskBarPosition{place.left(), place.top(), place.right() + 1, place.bottom() + 1, panel.edge};
}

} // namespace velmoriax::desktop
