// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/windows/secondary_window.h"

#include "shell/windows/window_place.h"
#include "shell/windows/window_registry.h"
#include "widgets/accessible_role.h"
#include "widgets/focused_button.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>

namespace velmoriax::shell {

SecondaryWindow::SecondaryWindow(WindowContext& context, Qt::WindowFlags flags) :
    QWidget(nullptr, flags), context_(context) {
    const bool isDialog = !flags.testFlag(Qt::WindowDoesNotAcceptFocus);
    widgets::setAccessibleRole(*this, isDialog ? QAccessible::Dialog : QAccessible::ToolTip);
}

void SecondaryWindow::unload() {
    if (unloaded_) return;
    unloaded_ = true;
    hide();
    onUnload();
    windows().release(*this);
}

void SecondaryWindow::showNormalState() {
    // A box of the load may be open, behind which the tray's menu asks for the window again.
    if (!isLoaded() || windows().isLoading(*this)) return;
    setWindowState(windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized));
    show();
    raise();
    activateWindow();
}

void SecondaryWindow::centreOverModule() {
    ManagedWindow* module = windows().loadedModule();
    const bool inSight = module && module->widget().isVisible() && !module->widget().isMinimized();
    centreOver(*this,
               inSight ? module->widget().frameGeometry() : QGuiApplication::primaryScreen()->availableGeometry());
}

void SecondaryWindow::closeEvent(QCloseEvent* event) {
    event->accept();
    unload();
}

void SecondaryWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        close();
    else if (!widgets::pressFocusedButton(*this, *event))
        QWidget::keyPressEvent(event);
}

} // namespace velmoriax::shell
