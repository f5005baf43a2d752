// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/windows/ctx_sys_tray.h"

#include "shell/windows/module_window.h"

namespace velmoriax::shell {

CtxSysTray::CtxSysTray(Process& process, ModuleWindow& owner, QMenu& popup) :
    process_(process), owner_(owner), popup_(popup) {
    auto& tray = process.desktop.tray;
    connect(&tray, &desktop::DesktopTray::leftClicked, this, &CtxSysTray::leftButtonUp);
    connect(&tray, &desktop::DesktopTray::leftDoubleClicked, this, &CtxSysTray::leftDoubleClick);
    connect(&tray, &desktop::DesktopTray::rightClicked, this, &CtxSysTray::rightButtonUp);
}

CtxSysTray::~CtxSysTray() {
    RemoveIconFromSystray();
}

void CtxSysTray::AddIconToSystray(std::string_view text) {
    if (process_.record.shell.noTrayAdd) return;
    added_ = true;
    process_.desktop.tray.add(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())), &popup_);
}

void CtxSysTray::UpdateIcon(std::string_view text) {
    if (added_) process_.desktop.tray.update(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
}

void CtxSysTray::RemoveIconFromSystray() {
    // The next module may have added the icon already when this one is destroyed.
    if (std::exchange(added_, false)) process_.desktop.tray.remove();
}

void CtxSysTray::leftButtonUp() {
    if (!added_) return;
    process_.record.shell.trayBusy = true;
    owner_.returnFromTray();
}

void CtxSysTray::leftDoubleClick() {
    leftButtonUp();
}

void CtxSysTray::rightButtonUp() {
    if (added_) process_.record.shell.trayBusy = true;
}

} // namespace velmoriax::shell
