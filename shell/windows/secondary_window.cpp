// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/windows/secondary_window.h"

#include "shell/windows/focused_button.h"
#include "shell/windows/module_window.h"
#include "shell/windows/window_place.h"
#include "shell/windows/window_registry.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>

namespace velmoriax::shell {

SecondaryWindow::SecondaryWindow(Process& process, Qt::WindowFlags flags) :
    QWidget(nullptr, flags), process_(process) {}

void SecondaryWindow::unload() {
    if (unloaded_) return;
    unloaded_ = true;
    hide();
    onUnload();
    process_.windows.release(*this);
}

void SecondaryWindow::showNormalState() {
    if (!isLoaded()) return;
    setWindowState(windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized));
    show();
    raise();
    activateWindow();
}

void SecondaryWindow::standOverModule() {
    const ModuleWindow* module = process_.windows.loadedModule();
    const bool inSight = module && module->isVisible() && !module->isMinimized();
    standOver(*this, inSight ? module->frameGeometry() : QGuiApplication::primaryScreen()->availableGeometry());
}

void SecondaryWindow::closeEvent(QCloseEvent* event) {
    event->accept();
    unload();
}

void SecondaryWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        close();
    else if (!pressFocusedButton(*this, *event))
        QWidget::keyPressEvent(event);
}

} // namespace velmoriax::shell
