// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/windows/module_window.h"

#include "desktop/tray.h"
#include "shell/tray_tip.h"
#include "shell/windows/module_switcher.h"
#include "shell/windows/window_place.h"
#include "shell/windows/window_registry.h"
#include "widgets/conversions.h"
#include "widgets/focused_button.h"
#include "widgets/input_rules.h"
#include "widgets/picture_box.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <QScreen>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace velmoriax::shell {

ModuleWindow::ModuleWindow(WindowContext& context, const ModuleInfo& module) :
    context_(context), module_(module), tray_(context, iconMenu_) {
    setObjectName(widgets::qtText(module.windowName));
    connect(&tray_, &CtxSysTray::MouseUp, this, &ModuleWindow::onTrayButtonUp);
    connect(&tray_, &CtxSysTray::DblClick, this, &ModuleWindow::onTrayDoubleClick);
    connect(&desktop().tray, &desktop::Tray::trayLost, this, &ModuleWindow::onTrayLost);
}

ModuleWindow* ModuleWindow::loadedIn(const WindowRegistry& windows) {
    return dynamic_cast<ModuleWindow*>(windows.loadedModule());
}

void ModuleWindow::load() {
    ShellState& flags = state();
    flags.viewLoading = true;
    if (!isRefresh()) centreOnScreen(*this);
    beforeOptions();
    options().readAtModuleLoad();
    if (!isRefresh()) addTrayIcon();
    ownLoad();
    if (isLoaded()) decideShowing(); // events may have run inside, the program's exit among them
    flags.viewLoading = false;
}

void ModuleWindow::addTrayIcon() {
    tray_.AddIconToSystray(options().holders.tooltipsOff() ? programName : std::string_view{});
}

void ModuleWindow::decideShowing() {
    if (isRefresh()) return showQuietly();
    unloadForReal_ = false;
    const std::string startMinimized = options().leerIniciarMinimizado();
    if (!startsHidden(module_, startMinimized)) return showNormalState();
    hide();
    // A window that no tray can bring back is shown after all, as soon as that is known.
    auto& tray = desktop().tray;
    const auto showIfUnreachable = [this, &tray] {
        if (isVisible() || tray.reachable()) return;
        showNormalState();
        tellMissingTray();
    };
    if (tray.decided())
        QTimer::singleShot(0, this, showIfUnreachable);
    else
        connect(&tray, &desktop::Tray::waitEnded, this, showIfUnreachable);
}

bool ModuleWindow::isLoaded() const {
    return windows().isLoaded(*this);
}

void ModuleWindow::showNormalState() {
    if (!isLoaded()) return;
    setAttribute(Qt::WA_ShowWithoutActivating, false);
    showNormal();
    activateWindow();
}

/// What comes by itself leaves the keyboard to the program that the user works in.
void ModuleWindow::showQuietly() {
    if (!isVisible()) setAttribute(Qt::WA_ShowWithoutActivating);
    showNormal();
}

void ModuleWindow::showNormal() {
    const bool leavesMaximised = isMaximized();
    const QRect normal = normalGeometry();
    setWindowState(windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized));
    if (leavesMaximised && isHidden()) setGeometry(normal); // a closed window would keep the size of the screen
    show();
    raise();
}

void ModuleWindow::hideToTray() {
    if (desktop().tray.reachable()) {
        hide();
    } else {
        showMinimized();
        tellMissingTray();
    }
    onHidden();
}

/// What each answer to the icon does first: a window that holds the mouse releases it, and no tip covers what
/// comes up.
void ModuleWindow::releaseTip() {
    if (QWidget* holder = QWidget::mouseGrabber()) holder->releaseMouse();
    state().trayBusy = true;
    windows().unload("FrmToolTip");
}

void ModuleWindow::onTrayButtonUp(int button) {
    releaseTip();
    if (button == CtxSysTray::leftButton) return returnFromTray();
    if (isVisible()) {
        raise();
        activateWindow();
    }
    iconMenu_.popup(QCursor::pos());
}

void ModuleWindow::onTrayDoubleClick() {
    releaseTip();
    returnFromTray();
}

/// A window that was hidden into a tray that is no more comes back to the taskbar.
void ModuleWindow::onTrayLost() {
    if (isVisible() || windows().loadedModule() != this) return;
    showMinimized();
    tellMissingTray();
}

void ModuleWindow::tellMissingTray() {
    // At login the panel may still be on its way.
    if (!desktop().tray.decided() || std::exchange(state().trayMissingReported, true)) return;
    QTimer::singleShot(0, this, [this] {
        desktop().boxes.show(
            platform::BoxIcon::information,
            "This desktop shows no tray icons, so Velmoriax stays in the taskbar instead of hiding.\n\n"
            "To have the icon, add a notification area (system tray) to a panel. On GNOME, install "
            "and switch on the extension AppIndicator and KStatusNotifierItem Support.");
    });
}

void ModuleWindow::beforeHandOver() {
    widgets::commitTypedValue();
    onHandOver();
}

void ModuleWindow::unload() {
    unloadForReal_ = true;
    closeOrUnload();
}

void ModuleWindow::closeOrUnload() {
    widgets::commitTypedValue();
    beforeClose();
    if (!unloadForReal_) return hideToTray();
    if (!state().closingAll && options().holders.moduleChangesSound()) desktop().sounds.playWav("boop.wav");
    unloadForReal_ = false;
    onUnload();
    hide();
    windows().release(*this);
}

void ModuleWindow::UnloadAllForms() {
    context_.switcher.exit();
}

void ModuleWindow::closeEvent(QCloseEvent* event) {
    // An ignored close event would hold up the end of the session: it is accepted, and the window stays alive, hidden.
    // Without a tray the window goes to the taskbar instead, and only then the event is refused.
    const bool canHide = desktop().tray.reachable() || qApp->isSavingSession();
    event->setAccepted(canHide);
    closeOrUnload();
}

void ModuleWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    const bool minimisedNow = event->type() == QEvent::WindowStateChange && isMinimized();
    // The window manager is still at work on the window inside this event.
    if (minimisedNow) QTimer::singleShot(0, this, [this] { minimised(); });
}

void ModuleWindow::keyPressEvent(QKeyEvent* event) {
    if (!widgets::pressFocusedButton(*this, *event)) QMainWindow::keyPressEvent(event);
}

void ModuleWindow::minimised() {
    if (!isLoaded() || !isMinimized()) return;
    // Without a tray the window stays on the taskbar, as with "toolbar".
    const bool toSystray = options().holders.minimisesToTray() && desktop().tray.reachable();
    if (toSystray) hide();
    onMinimised(toSystray);
}

void ModuleWindow::run(Command command, std::string_view target, std::string_view name) {
    if (!isLoaded() || !context_.switcher.takesCommands())
        return; // a key may still be on its way to a window that is gone
    widgets::commitTypedValue();
    switch (command) {
    case Command::goTo:
        return context_.switcher.handOver(target);
    case Command::hide:
        return hideToTray();
    case Command::options:
        return windows().touch("FrmOptions").showNormalState();
    case Command::about:
        return windows().touch("frmAbout").showNormalState();
    case Command::help:
        desktop().opener.open(desktop().files.applicationDirectory() + "/Velmoriax.html");
        return;
    case Command::exit:
        return UnloadAllForms();
    case Command::own:
        return ownCommand(name);
    case Command::submenu:
    case Command::separator:
        return;
    }
}

void ModuleWindow::ownCommand(std::string_view) {}

void ModuleWindow::buildNavigation() {
    const ModuleNavigation& navigation = module_.navigation;
    for (const ButtonRow& row : navigation.buttons) connectButton(row);
    iconMenu_.setObjectName(widgets::qtText(navigation.iconMenu.name));
    addEntries(iconMenu_, navigation.iconMenu);
    for (const Menu& table : navigation.mainMenus) {
        QMenu* menu = menuBar()->addMenu(widgets::qtText(table.caption));
        menu->setObjectName(widgets::qtText(table.name));
        addEntries(*menu, table);
    }
}

void ModuleWindow::connectButton(const ButtonRow& row) {
    const auto act = [this, row] { run(row.command, row.target, row.name); };
    if (auto* button = findChild<QAbstractButton*>(widgets::qtText(row.name)))
        connect(button, &QAbstractButton::clicked, this, act);
    else if (auto* picture = findChild<widgets::PictureBox*>(widgets::qtText(row.name)))
        connect(picture, &widgets::PictureBox::clicked, this, act);
}

void ModuleWindow::addEntries(QMenu& menu, const Menu& table) {
    QMenu* submenu = nullptr;
    for (const MenuEntry& entry : table.entries) {
        QMenu& parent = entry.depth > 0 && submenu ? *submenu : menu;
        switch (entry.command) {
        case Command::separator:
            parent.addSeparator();
            break;
        case Command::submenu:
            submenu = parent.addMenu(widgets::qtText(entry.caption));
            submenu->setObjectName(widgets::qtText(entry.name));
            break;
        default:
            addMenuAction(parent, entry);
        }
    }
    if (submenu) addUnlistedModules(*submenu, table);
}

void ModuleWindow::addMenuAction(QMenu& menu, const MenuEntry& entry) {
    QAction* action = menu.addAction(widgets::qtText(entry.caption));
    action->setObjectName(widgets::qtText(entry.name));
    action->setCheckable(entry.checkable);
    connect(action, &QAction::triggered, this, [this, entry] { run(entry.command, entry.target, entry.name); });
    actions_.emplace(entry.name, action);
}

/// A module that the table does not know is reached as well.
void ModuleWindow::addUnlistedModules(QMenu& submenu, const Menu& table) {
    for (const ModuleInfo* each : windows().modules()) {
        const bool listed = std::ranges::count(table.entries, each->windowName, &MenuEntry::target) > 0;
        if (each != &module_ && !listed)
            addMenuAction(submenu, goEntry(each->windowName, each->initialText, each->windowName));
    }
}

QAction* ModuleWindow::menuAction(std::string_view name) const {
    const auto found = actions_.find(name);
    return found == actions_.end() ? nullptr : found->second;
}

} // namespace velmoriax::shell
