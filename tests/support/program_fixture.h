// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "program/modules.h"
#include "shell/windows/frm_timer.h"
#include "shell/windows/module_window.h"
#include "support/desktop_fixture.h"

namespace velmoriax::test {

/// The whole program on a desktop of fakes.
class ProgramFixture : public DesktopFixture {
protected:
    ProgramFixture() { modules.setNotification(&notification); }

    shell::ModuleWindow& loadedModule() const { return *shell::ModuleWindow::loadedIn(windows); }

    program::Modules modules{services};
    shell::FrmTimer hub{modules.context};
    shell::ShellState& state = modules.state;
    shell::OptionsStore& options = modules.options;
    shell::ModuleSwitcher& switcher = modules.switcher;
    shell::WindowRegistry& windows = modules.windows;
};

} // namespace velmoriax::test
