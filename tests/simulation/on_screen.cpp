// SPDX-License-Identifier: GPL-3.0-or-later
#include "on_screen.h"

#include "shell/windows/managed_window.h"
#include "simulation.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCursor>
#include <QMenuBar>
#include <QTest>

#include <algorithm>

namespace velmoriax::simulation {

std::vector<QWidget*> shownWindows() {
    std::vector<QWidget*> windows;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && dynamic_cast<shell::ManagedWindow*>(window)) windows.push_back(window);
    std::ranges::sort(windows, {}, [](const QWidget* window) { return window->objectName(); });
    return windows;
}

std::vector<QWidget*> usableWindows() {
    auto windows = shownWindows();
    if (const QWidget* modal = QApplication::activeModalWidget())
        std::erase_if(windows, [modal](const QWidget* window) { return window != modal; });
    std::erase_if(windows, [](const QWidget* window) { return window->isMinimized(); });
    return windows;
}

std::vector<Clickable> controlsOnScreen() {
    std::vector<Clickable> controls;
    const auto click = [](QWidget* control) {
        QTest::mouseClick(control, Qt::LeftButton, {}, control->rect().center());
    };
    const auto add = [&](QWidget* control) {
        if (!control->objectName().startsWith("qt_"))
            controls.push_back({control->objectName().toStdString(), [click, control] { click(control); }});
    };
    for (auto* button : onScreen<QAbstractButton>([](const QWidget&) { return true; })) add(button);
    for (auto* picture : onScreen<widgets::PictureBox>([](const QWidget&) { return true; })) add(picture);
    return controls;
}

std::vector<QAction*> actionsOf(const QMenu* menu) {
    std::vector<QAction*> found;
    if (!menu) return found;
    for (QAction* action : menu->actions()) {
        if (action->menu()) {
            const auto inside = actionsOf(action->menu());
            found.insert(found.end(), inside.begin(), inside.end());
        } else if (!action->isSeparator() && action->isEnabled()) {
            found.push_back(action);
        }
    }
    return found;
}

std::vector<QAction*> menuBarActions() {
    std::vector<QAction*> found;
    for (const auto* bar : onScreen<QMenuBar>([](const QWidget&) { return true; }))
        for (const QAction* entry : bar->actions()) {
            const auto inside = actionsOf(entry->menu());
            found.insert(found.end(), inside.begin(), inside.end());
        }
    return found;
}

void restPointerOnIcon(Simulation& simulation) {
    using namespace std::chrono_literals;
    QCursor::setPos(simulation.tray.place.center());
    for (int move = 0; move < 3; ++move) simulation.tray.movePointer();
    simulation.pass(800ms, 100ms);
}

} // namespace velmoriax::simulation
