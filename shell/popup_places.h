// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/task_bar.h"

#include <cstddef>
#include <optional>

/// Sizes and places of the two small windows over the panel. The rules are in twips, 15 to a pixel; what comes back is
/// in pixels.
namespace velmoriax::shell {

/// The screen that a small window belongs to, in pixels, with what panels keep for themselves at three of its edges.
struct ScreenMeasures {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    int panelRight = 0;
    int panelBottom = 0;
    int panelLeft = 0;
};

/// The three backs of the notification.
enum class NotifBack { small, middle, large };

struct NotifSize {
    NotifBack back = NotifBack::small;
    int height = 0;
};

/// By the length of the text: below 150 characters small, from 266 on large.
NotifSize notifSize(std::size_t characters);

/// 500 twips stay free at the right, or the breadth of a panel there when that is more.
int notifLeft(const ScreenMeasures& screen, int windowWidth);

/// Where a slide up begins: just under the screen.
int notifStartTop(const ScreenMeasures& screen);

/// Where a slide up ends. 435 twips (29 pixels) stay free under the window, which is the place of a panel at the
/// bottom. A thicker panel pushes the window up, so that it is on the work area; with no panel at the bottom, or a
/// thinner one, the 29 pixels stay free.
int notifTop(const ScreenMeasures& screen, int windowHeight);

/// Where a slide down ends: a whole window height below the edge of the screen.
int notifHiddenTop(const ScreenMeasures& screen, int windowHeight);

/// The measures with the breadth of a panel at the bottom of the screen, which may reserve nothing of it.
ScreenMeasures withTaskBar(ScreenMeasures screen, const std::optional<platform::TaskBarPosition>& taskBar);

/// False when the panel is at the bottom and the pointer, at `pointerY` on the desktop, is above the lowest 5 per cent
/// of the screen and above the panel, which may be thicker than that.
bool personalTipFits(const ScreenMeasures& screen, int pointerY, bool taskBarAtBottom);

/// Centred over the pointer, and moved aside as far as it takes to be seen whole, since the icon is often near a
/// corner, and to leave a panel at the left or right free: over the icon the pointer would take it away at once.
int personalTipLeft(const ScreenMeasures& screen, int windowWidth, int pointerX);

/// 2150 twips above the bottom edge of the screen, and higher only where a window that a large font has made tall, or
/// a thick panel, would bring it over the icon: there the pointer would take it away at once.
int personalTipTop(const ScreenMeasures& screen, int windowHeight);

} // namespace velmoriax::shell
