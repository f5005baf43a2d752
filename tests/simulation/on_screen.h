// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "widgets/picture_box.h"

#include <QAction>
#include <QMenu>
#include <QWidget>

#include <functional>
#include <string>
#include <vector>

/// What a user can see and use on the simulated screen, always in the same order.
namespace velmoriax::simulation {

class Simulation;

/// The program's windows that are shown.
std::vector<QWidget*> shownWindows();

/// Of them those that no modal window blocks.
std::vector<QWidget*> usableWindows();

struct Clickable {
    std::string name;
    std::function<void()> click;
};

/// Buttons and pictures that can be clicked.
std::vector<Clickable> controlsOnScreen();

/// The entries of the menu bars, and of a menu, that can be chosen.
std::vector<QAction*> menuBarActions();
std::vector<QAction*> actionsOf(const QMenu* menu);

/// The controls of a type in the usable windows that satisfy a condition and can be used.
template<typename Control>
std::vector<Control*> onScreen(const std::function<bool(const QWidget&)>& condition) {
    std::vector<Control*> found;
    for (QWidget* window : usableWindows())
        for (auto* control : window->findChildren<Control*>())
            if (control->isVisible() && control->isEnabled() && condition(*control)) found.push_back(control);
    return found;
}

/// Moves the pointer onto the tray icon and rests there until a tip must be up.
void restPointerOnIcon(Simulation& simulation);

} // namespace velmoriax::simulation
