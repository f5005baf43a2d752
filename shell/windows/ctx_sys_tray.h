// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/windows/process.h"

#include <QMenu>
#include <QObject>

#include <string_view>

namespace velmoriax::shell {

class ModuleWindow;

/// The program's name as the tray, the tip and the boxes show it.
inline constexpr std::string_view programName = "Velmoriax by ostrabe";

/// A module's hold on the tray icon. Each module has one; the icon of the module that is loaded is the only one.
class CtxSysTray : public QObject {
    Q_OBJECT

public:
    /// `popup` is the window's menu "MnuIcon".
    CtxSysTray(Process& process, ModuleWindow& owner, QMenu& popup);
    ~CtxSysTray() override;

    /// Adds the icon with a tip text. Does nothing while `noTrayAdd` is up.
    void AddIconToSystray(std::string_view text);

    /// Changes the tip text.
    void UpdateIcon(std::string_view text);

    void RemoveIconFromSystray();

private:
    void leftButtonUp();
    void leftDoubleClick();
    void rightButtonUp();

    Process& process_;
    ModuleWindow& owner_;
    QMenu& popup_;
    bool added_ = false;
};

} // namespace velmoriax::shell
