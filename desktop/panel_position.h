// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/task_bar.h"

#include <QRect>

class QScreen;

namespace velmoriax::desktop {

class Tray;

/// What panels leave of a screen, in logical pixels. On a desktop of several screens the window manager
/// reports one area for all of them together, which says nothing of the single screen: there the area is computed from
/// what each panel reserves.
QRect workAreaOf(const QScreen& screen);

/// The panel of the screen with the icon, or of the primary screen where the icon's place is not known, as panelOf()
/// chooses it.
class PanelPosition : public platform::TaskBar {
public:
    explicit PanelPosition(const Tray& tray) : tray_(tray) {}
    std::optional<platform::TaskBarPosition> position() const override;

private:
    const Tray& tray_;
};

} // namespace velmoriax::desktop
