// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/popup_places.h"

#include "base/rounding.h"
#include "shell/window_position.h"

#include <algorithm>
#include <array>

namespace velmoriax::shell {

namespace {

constexpr int notifGapRight = 500;
constexpr int notifGapBottom = 435;
constexpr int tipAboveBottom = 2150;

struct SizeRow {
    std::size_t below; ///< first length that is too long
    NotifBack back;
    int height; ///< twips
};

constexpr std::array<SizeRow, 3> sizes{{
    {150, NotifBack::small, 1800},
    {266, NotifBack::middle, 2670},
    {static_cast<std::size_t>(-1), NotifBack::large, 3650},
}};

int pixels(int twips) {
    return base::nearestInt32(static_cast<double>(twips) / twipsPerPixel);
}

} // namespace

NotifSize notifSize(std::size_t characters) {
    const auto* row = std::ranges::find_if(sizes, [&](const SizeRow& size) { return characters < size.below; });
    return {row->back, pixels(row->height)};
}

int notifLeft(const ScreenMeasures& screen, int windowWidth) {
    return screen.left + screen.width - windowWidth - std::max(pixels(notifGapRight), screen.panelRight);
}

int notifStartTop(const ScreenMeasures& screen) {
    return screen.top + screen.height;
}

int notifTop(const ScreenMeasures& screen, int windowHeight) {
    return screen.top + screen.height - windowHeight - std::max(pixels(notifGapBottom), screen.panelBottom);
}

int notifHiddenTop(const ScreenMeasures& screen, int windowHeight) {
    return screen.top + screen.height + windowHeight;
}

ScreenMeasures withTaskBar(ScreenMeasures screen, const std::optional<platform::TaskBarPosition>& taskBar) {
    const int bottom = screen.top + screen.height;
    const bool atBottom = taskBar && taskBar->edge == platform::TaskBarPosition::bottomEdge &&
                          taskBar->bottom == bottom && taskBar->left < screen.left + screen.width &&
                          taskBar->right > screen.left;
    if (atBottom) screen.panelBottom = std::max(screen.panelBottom, bottom - taskBar->top);
    return screen;
}

bool personalTipFits(const ScreenMeasures& screen, int pointerY, bool taskBarAtBottom) {
    const double panelTop = (screen.height - screen.panelBottom) * twipsPerPixel;
    const double limit = std::min(screen.height * twipsPerPixel * 95.0 / 100.0, panelTop - 1);
    return !taskBarAtBottom || limit < (pointerY - screen.top) * twipsPerPixel;
}

int personalTipLeft(const ScreenMeasures& screen, int windowWidth, int pointerX) {
    const int nearest = screen.left + screen.panelLeft;
    const int farthest = std::max(nearest, screen.left + screen.width - screen.panelRight - windowWidth);
    return std::clamp(pointerX - windowWidth / 2, nearest, farthest);
}

int personalTipTop(const ScreenMeasures& screen, int windowHeight) {
    const int bottom = screen.top + screen.height;
    const int highestNeeded = bottom - screen.panelBottom - windowHeight;
    return std::max(screen.top, std::min(bottom - pixels(tipAboveBottom), highestNeeded));
}

} // namespace velmoriax::shell
