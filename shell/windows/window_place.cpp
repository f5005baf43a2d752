// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/windows/window_place.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>
#include <limits>

namespace velmoriax::shell {

namespace {

/// What has to be on a screen for a window to be caught with the mouse: a strip of its top as wide as a hand.
constexpr int graspableWidth = 80;
constexpr int graspableHeight = 24;

QRect graspableStrip(const QRect& window) {
    return {window.topLeft(), QSize(std::max(window.width(), graspableWidth), graspableHeight)};
}

bool isGraspable(const QRect& window) {
    const auto screens = QGuiApplication::screens();
    return std::ranges::any_of(screens, [&](const QScreen* screen) {
        const QRect visible = screen->availableGeometry().intersected(graspableStrip(window));
        return visible.width() >= graspableWidth && visible.height() >= graspableHeight / 2;
    });
}

int distance(const QRect& area, QPoint point) {
    const int dx = std::max({area.left() - point.x(), point.x() - area.right(), 0});
    const int dy = std::max({area.top() - point.y(), point.y() - area.bottom(), 0});
    return dx + dy;
}

QRect nearestWorkArea(QPoint point) {
    QRect nearest = QGuiApplication::primaryScreen()->availableGeometry();
    int least = std::numeric_limits<int>::max();
    for (const QScreen* screen : QGuiApplication::screens()) {
        const int away = distance(screen->availableGeometry(), point);
        if (away >= least) continue;
        least = away;
        nearest = screen->availableGeometry();
    }
    return nearest;
}

QRect broughtBack(const QRect& window) {
    return isGraspable(window) ? window : onScreen(window);
}

/// Far beyond any screen, and far from the end of the toolkit's numbers.
int pixels(int twips) {
    constexpr int farthest = 100000;
    return std::clamp(twips / twipsPerPixel, -farthest, farthest);
}

} // namespace

QRect onScreen(QRect window) {
    const QRect area = nearestWorkArea(window.topLeft());
    const int right = std::max(area.left(), area.right() - std::max(window.width(), graspableWidth) + 1);
    const int bottom = std::max(area.top(), area.bottom() - std::max(window.height(), graspableHeight) + 1);
    window.moveTo(std::clamp(window.left(), area.left(), right), std::clamp(window.top(), area.top(), bottom));
    return window;
}

void centreOver(QWidget& window, const QRect& place) {
    if (!window.testAttribute(Qt::WA_Resized))
        window.adjustSize(); // else it has not taken the size of its controls yet
    window.move(onScreen({place.center() - window.rect().center(), window.size()}).topLeft());
}

WindowPlace placeOf(const QWidget& window) {
    return {window.x() * twipsPerPixel, window.y() * twipsPerPixel, window.width() * twipsPerPixel,
            window.height() * twipsPerPixel};
}

void moveToPlace(QWidget& window, const WindowPlace& place) {
    const QSize size = QSize(pixels(place.width), pixels(place.height)).expandedTo(window.minimumSizeHint());
    const QRect target = broughtBack({QPoint(pixels(place.left), pixels(place.top)), size});
    window.resize(target.size());
    window.move(target.topLeft());
}

} // namespace velmoriax::shell
