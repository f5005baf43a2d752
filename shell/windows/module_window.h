// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/navigation.h"
#include "shell/windows/ctx_sys_tray.h"
#include "shell/windows/process.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>

#include <map>
#include <string>

namespace velmoriax::shell {

/// What the six modules have in common: the load routine around each one's own work, the hand-over to the next module,
/// hiding and minimising, the tray icon and its menu, the exit.
class ModuleWindow : public QMainWindow {
    Q_OBJECT

public:
    ModuleWindow(Process& process, Module module);

    Module module() const { return module_; }

    /// The load routine: options, tray icon, the module's own work, then whether to show.
    void load();

    /// Goes to another module: icon off, target loaded and shown, this window unloaded for real.
    void handOverTo(Module target);

    /// Sets the window state to normal and shows the window.
    void showNormalState();

    /// The way back from the tray; a module that has more to do than show itself adds it.
    virtual void returnFromTray() { showNormalState(); }

    /// Ends the program.
    void UnloadAllForms();

    /// Unloads for real while the program ends.
    void unloadAtExit();

    /// Hides to the tray, or to the taskbar when there is no tray to come back from.
    void hideToTray();

    /// False once the window was unloaded: what let events run inside it is to touch nothing more.
    bool isLoaded() const;

    CtxSysTray& ctxSysTray1() { return tray_; }

    /// The action of a menu entry by its control name; null when there is none. The popup's entries come first.
    QAction* menuAction(std::string_view name) const;

protected:
    /// Connects the buttons and builds the menus of the navigation table. To be called when the controls stand.
    void buildNavigation();

    virtual void beforeOptions() {}                  ///< runs ahead of everything else in the load routine
    virtual void ownLoad() = 0;                      ///< the module's own work
    virtual void ownCommand(std::string_view name);  ///< a menu entry that is the module's own business
    virtual void beforeClose() {}                    ///< the window closes, for good or into the tray
    virtual void onHidden() {}                       ///< the window was hidden by the user
    virtual void onMinimised(bool /*toSystray*/) {}  ///< the window was minimised
    virtual void onUnload() {}                       ///< a true unload, before it goes through
    virtual bool isRefresh() const { return false; } ///< the load routine runs on a live window

    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    Process& process() const { return process_; }
    ProcessRecord& record() const { return process_.record; }
    DesktopServices& desktop() const { return process_.desktop; }

private:
    void decideShowing();
    void onTrayButtonUp(int button);
    void onTrayDoubleClick();
    void releaseTip();
    void onTrayLost();
    void tellMissingTray();
    void unload();
    void minimised();
    void run(Command command, Module target, std::string_view name);
    void connectButton(const ButtonRow& row);
    void addEntries(QMenu* menu, const Menu& table);

    Process& process_;
    Module module_;
    bool unloadForReal_ = false;
    QMenu iconMenu_;
    CtxSysTray tray_;
    std::map<std::string, QAction*, std::less<>> actions_;
};

} // namespace velmoriax::shell
