// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/windows/window_place.h"

#include <QGuiApplication>
#include <QRegion>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace velmoriax::shell {

namespace {

/// What a title bar takes of the screen's height, as far as can be known before the window manager has made one.
constexpr int titleBarHeight = 32;

/// What has to be on a screen for a window to be caught with the mouse.
constexpr QSize smallest(80, 24);

/// What panels leave of the screens.
QRegion workAreas() {
    QRegion areas;
    for (const QScreen* screen : QGuiApplication::screens()) areas += screen->availableGeometry();
    return areas;
}

int distance(const QRect& area, QPoint point) {
    const int dx = std::max({area.left() - point.x(), point.x() - area.right(), 0});
    const int dy = std::max({area.top() - point.y(), point.y() - area.bottom(), 0});
    return dx + dy;
}

QRect nearestWorkArea(QPoint point) {
    const auto screens = QGuiApplication::screens();
    const auto nearest = std::ranges::min_element(
        screens, {}, [&](const QScreen* screen) { return distance(screen->availableGeometry(), point); });
    return (*nearest)->availableGeometry();
}

/// Far beyond any screen, and far from the end of the toolkit's numbers.
int pixels(int twips) {
    constexpr int farthest = 100000;
    return std::clamp(twips / twipsPerPixel, -farthest, farthest);
}

} // namespace

QRect fittedOnScreens(const QRect& window) {
    const QRect whole(window.topLeft(), window.size().expandedTo(smallest) + QSize(0, titleBarHeight));
    if (QRegion(whole).subtracted(workAreas()).isEmpty()) return window;
    const QRect area = nearestWorkArea(window.topLeft());
    const QSize room = area.size() - QSize(0, titleBarHeight);
    QRect fitted(window.topLeft(), window.size().boundedTo(room));
    const QSize needed = fitted.size().expandedTo(smallest);
    const int right = area.left() + room.width() - needed.width();
    const int bottom = area.top() + room.height() - needed.height();
    fitted.moveTo(std::clamp(fitted.left(), area.left(), right), std::clamp(fitted.top(), area.top(), bottom));
    return fitted;
}

static void takePlace(QWidget& window, const QRect& wanted) {
    const QRect fitted = fittedOnScreens(wanted);
    window.resize(fitted.size());
    window.move(fitted.topLeft());
}

void centreOver(QWidget& window, const QRect& place) {
    if (!window.testAttribute(Qt::WA_Resized))
        window.resize(window.sizeHint()); // else it has not taken the size of its controls yet
    takePlace(window, {place.center() - window.rect().center(), window.size()});
}

void centreOnScreen(QWidget& window) {
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry().adjusted(0, 0, 0, -titleBarHeight);
    const QSize size = window.size().boundedTo(area.size());
    takePlace(window, {area.center() - QPoint(size.width() / 2, size.height() / 2), size});
}

WindowPlace placeOf(const QWidget& window) {
    return {window.x() * twipsPerPixel, window.y() * twipsPerPixel, window.width() * twipsPerPixel,
            window.height() * twipsPerPixel};
}

void moveToPlace(QWidget& window, const WindowPlace& place) {
    const QSize size = QSize(pixels(place.width), pixels(place.height)).expandedTo(window.minimumSizeHint());
    takePlace(window, {QPoint(pixels(place.left), pixels(place.top)), size});
}

} // namespace velmoriax::shell
