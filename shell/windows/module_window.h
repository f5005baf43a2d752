// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/modules.h"
#include "shell/windows/ctx_sys_tray.h"
#include "shell/windows/managed_window.h"
#include "shell/windows/window_context.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>

#include <map>
#include <string>

namespace velmoriax::shell {

/// What the six modules have in common: the load routine around each one's own work, the hand-over to the next module,
/// hiding and minimising, the tray icon and its menu, the exit.
class ModuleWindow : public QMainWindow, public ManagedModule {
    Q_OBJECT

public:
    ModuleWindow(WindowContext& context, const ModuleInfo& module);

    /// The module that is loaded; null when there is none.
    static ModuleWindow* loadedIn(const WindowRegistry& windows);

    const ModuleInfo& module() const { return module_; }
    QWidget& widget() override { return *this; }

    /// The load routine: options, tray icon, the module's own work, then whether to show.
    void load() override;

    void unload() override;
    void showNormalState() override;
    void removeTrayIcon() override { tray_.RemoveIconFromSystray(); }
    void beforeHandOver() override;

    /// The way back from the tray; a module that has more to do than show itself adds it.
    virtual void returnFromTray() { showNormalState(); }

    /// Ends the program.
    void UnloadAllForms();

    /// Hides to the tray, or to the taskbar when there is no tray to come back from.
    void hideToTray();

    /// False once the window was unloaded: what has processed events inside it touches nothing more.
    bool isLoaded() const;

    CtxSysTray& ctxSysTray1() { return tray_; }

    /// Adds the icon, with the program's name as its tip while tips are off.
    void addTrayIcon();

    /// The action of a menu entry by its control name; null when there is none. The popup's entries come first.
    QAction* menuAction(std::string_view name) const;

protected:
    /// Connects the buttons and builds the menus of the navigation table. To be called when the controls exist.
    void buildNavigation();

    virtual void beforeOptions() {}                  ///< runs ahead of everything else in the load routine
    virtual void ownLoad() = 0;                      ///< the module's own work
    virtual void ownCommand(std::string_view name);  ///< a menu entry that is the module's own business
    virtual void onHandOver() {}                     ///< another module is about to be loaded
    virtual void beforeClose() {}                    ///< the window closes, for good or into the tray
    virtual void onHidden() {}                       ///< the window was hidden by the user
    virtual void onMinimised(bool /*toSystray*/) {}  ///< the window was minimised
    virtual void onUnload() {}                       ///< a true unload, before it goes through
    virtual bool isRefresh() const { return false; } ///< the load routine runs on a live window

    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    WindowContext& context() const { return context_; }
    ShellState& state() const { return context_.state; }
    OptionsStore& options() const { return context_.options; }
    WindowRegistry& windows() const { return context_.windows; }
    DesktopServices& desktop() const { return context_.desktop; }

private:
    void decideShowing();
    void showQuietly();
    void showNormal();
    void onTrayButtonUp(int button);
    void onTrayDoubleClick();
    void releaseTip();
    void onTrayLost();
    void tellMissingTray();
    void closeOrUnload();
    void minimised();
    void run(Command command, std::string_view target, std::string_view name);
    void connectButton(const ButtonRow& row);
    void addEntries(QMenu& menu, const Menu& table);
    void addMenuAction(QMenu& menu, const MenuEntry& entry);
    void addUnlistedModules(QMenu& submenu, const Menu& table);

    WindowContext& context_;
    const ModuleInfo& module_;
    bool unloadForReal_ = false;
    QMenu iconMenu_;
    CtxSysTray tray_;
    std::map<std::string, QAction*, std::less<>> actions_;
};

} // namespace velmoriax::shell
