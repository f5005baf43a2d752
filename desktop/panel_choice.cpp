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

} // namespace

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
