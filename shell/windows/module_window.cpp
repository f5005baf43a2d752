// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/windows/module_window.h"

#include "shell/windows/focused_button.h"
#include "shell/windows/picture_box.h"
#include "shell/windows/secondary_window.h"
#include "shell/windows/window_registry.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <QScreen>
#include <QTimer>

#include <utility>

namespace velmoriax::shell {

namespace {

QString text(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

constexpr int handOverWaitMs = 50;

/// What a title bar takes of the screen's height, as far as can be known before the window manager has made one.
constexpr int titleBarHeight = 32;

/// Where a window stands that keeps no place of its own: the middle of the screen, wherever the last module stood, and
/// no larger than what the panels leave free.
void centre(QWidget& window) {
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry().adjusted(0, 0, 0, -titleBarHeight);
    const QSize size = window.size().boundedTo(area.size());
    window.resize(size);
    window.move(area.center() - QPoint(size.width() / 2, size.height() / 2));
}

} // namespace

ModuleWindow::ModuleWindow(Process& process, Module module) :
    process_(process), module_(module), tray_(process, iconMenu_) {
    setObjectName(text(windowNameOf(module)));
    connect(&tray_, &CtxSysTray::MouseUp, this, &ModuleWindow::onTrayButtonUp);
    connect(&tray_, &CtxSysTray::DblClick, this, &ModuleWindow::onTrayDoubleClick);
    connect(&process.desktop.tray, &desktop::DesktopTray::trayLost, this, &ModuleWindow::onTrayLost);
}

void ModuleWindow::load() {
    ShellState& flags = record().shell;
    flags.viewLoading = true;
    if (!isRefresh()) centre(*this);
    beforeOptions();
    record().options.readAtModuleLoad(module_ == Module::cardOfDay);
    const bool tooltipsOff = record().options.holders.tooltips == "ToolTips off";
    if (!isRefresh()) tray_.AddIconToSystray(tooltipsOff ? programName : std::string_view{});
    ownLoad();
    if (isLoaded()) decideShowing(); // events may have run inside, the program's exit among them
    flags.viewLoading = false;
}

void ModuleWindow::decideShowing() {
    if (isRefresh()) return showNormalState();
    unloadForReal_ = false;
    const std::string startMinimized = record().options.leerIniciarMinimizado();
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
        connect(&tray, &desktop::DesktopTray::waitEnded, this, showIfUnreachable);
}

void ModuleWindow::handOverTo(Module target) {
    if (record().shell.viewLoading) {
        // A click that comes in while a load lets events run: it waits until the window that loads stands.
        QTimer::singleShot(handOverWaitMs, this, [this, target] { handOverTo(target); });
        return;
    }
    tray_.RemoveIconFromSystray();
    process_.windows.touch(target, process_).showNormalState();
    unloadForReal_ = true;
    unload();
}

bool ModuleWindow::isLoaded() const {
    return process_.windows.isLoaded(*this);
}

void ModuleWindow::showNormalState() {
    if (!isLoaded()) return;
    setWindowState(windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized));
    show();
    raise();
    activateWindow();
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

/// What each answer to the icon does first: a window that has caught the mouse lets it go, and no tip stands over what
/// comes up.
void ModuleWindow::releaseTip() {
    if (QWidget* holder = QWidget::mouseGrabber()) holder->releaseMouse();
    record().shell.trayBusy = true;
    process_.windows.unload("FrmToolTip");
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
    if (isVisible() || process_.windows.loadedModule() != this) return;
    showMinimized();
    tellMissingTray();
}

void ModuleWindow::tellMissingTray() {
    // At login the panel may still be on its way.
    if (!desktop().tray.decided() || std::exchange(record().shell.trayMissingTold, true)) return;
    QTimer::singleShot(0, this, [this] {
        desktop().boxes.show(
            platform::BoxIcon::information,
            "This desktop shows no tray icons, so Velmoriax stays in the taskbar instead of hiding.\n\n"
            "To have the icon, add a notification area (system tray) to a panel. On GNOME, install "
            "and switch on the extension AppIndicator and KStatusNotifierItem Support.");
    });
}

void ModuleWindow::unload() {
    beforeClose();
    if (!unloadForReal_) return hideToTray();
    const bool soundOn = record().options.holders.bgSound == "SiBgSound";
    if (!record().shell.closingAll && soundOn) desktop().sounds.playWav("boop.wav");
    unloadForReal_ = false;
    onUnload();
    hide();
    process_.windows.release(*this);
}

void ModuleWindow::unloadAtExit() {
    unloadForReal_ = true;
    unload();
}

void ModuleWindow::UnloadAllForms() {
    tray_.RemoveIconFromSystray();
    record().shell.closingAll = true;
    process_.windows.unloadAll();
    QCoreApplication::exit(0);
}

void ModuleWindow::closeEvent(QCloseEvent* event) {
    // An ignored close event would hold up the end of the session: it is accepted, and the window stays alive, hidden.
    // Without a tray the window goes to the taskbar instead, and only then the event is refused.
    const bool canHide = desktop().tray.reachable() || qApp->isSavingSession();
    event->setAccepted(canHide);
    unload();
}

void ModuleWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    const bool minimisedNow = event->type() == QEvent::WindowStateChange && isMinimized();
    // The window manager is still at work on the window inside this event.
    if (minimisedNow) QTimer::singleShot(0, this, [this] { minimised(); });
}

void ModuleWindow::keyPressEvent(QKeyEvent* event) {
    if (!pressFocusedButton(*this, *event)) QMainWindow::keyPressEvent(event);
}

void ModuleWindow::minimised() {
    if (!isMinimized()) return;
    const bool toSystray = record().options.holders.minimizeTo == "systray";
    if (toSystray && desktop().tray.reachable()) hide();
    onMinimised(toSystray);
}

void ModuleWindow::run(Command command, Module target, std::string_view name) {
    switch (command) {
    case Command::goTo:
        return handOverTo(target);
    case Command::hide:
        return hideToTray();
    case Command::options:
        return process_.windows.touch("FrmOptions", process_).showNormalState();
    case Command::about:
        return process_.windows.touch("frmAbout", process_).showNormalState();
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
    const ModuleNavigation& navigation = navigationOf(module_);
    for (const ButtonRow& row : navigation.buttons) connectButton(row);
    iconMenu_.setObjectName(text(navigation.iconMenu.name));
    addEntries(&iconMenu_, navigation.iconMenu);
    for (const Menu& table : navigation.mainMenus) {
        QMenu* menu = menuBar()->addMenu(text(table.caption));
        menu->setObjectName(text(table.name));
        addEntries(menu, table);
    }
}

void ModuleWindow::connectButton(const ButtonRow& row) {
    const auto act = [this, row] { run(row.command, row.target, row.name); };
    if (auto* button = findChild<QAbstractButton*>(text(row.name)))
        connect(button, &QAbstractButton::clicked, this, act);
    else if (auto* picture = findChild<PictureBox*>(text(row.name)))
        connect(picture, &PictureBox::clicked, this, act);
}

void ModuleWindow::addEntries(QMenu* menu, const Menu& table) {
    QMenu* submenu = nullptr;
    for (const MenuEntry& entry : table.entries) {
        QMenu* parent = entry.depth > 0 && submenu ? submenu : menu;
        if (entry.command == Command::separator) {
            parent->addSeparator();
            continue;
        }
        if (entry.command == Command::submenu) {
            submenu = parent->addMenu(text(entry.caption));
            submenu->setObjectName(text(entry.name));
            continue;
        }
        QAction* action = parent->addAction(text(entry.caption));
        action->setObjectName(text(entry.name));
        action->setCheckable(entry.checkable);
        connect(action, &QAction::triggered, this, [this, entry] { run(entry.command, entry.target, entry.name); });
        actions_.emplace(entry.name, action);
    }
}

QAction* ModuleWindow::menuAction(std::string_view name) const {
    const auto found = actions_.find(name);
    return found == actions_.end() ? nullptr : found->second;
}

} // namespace velmoriax::shell
