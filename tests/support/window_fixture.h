// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/windows/module_switcher.h"
#include "shell/windows/module_window.h"
#include "shell/windows/window_context.h"
#include "shell/windows/window_registry.h"
#include "support/desktop_fixture.h"

namespace velmoriax::test {

struct FakeBirthAlerts : shell::BirthAlerts {
    base::CivilDate birth{1900, 1, 1};
    int runs = 0;
    void loadAtStart() override {}
    base::CivilDate birthDate() const override { return birth; }
    void runAtStart() override { ++runs; }
    void runHalfHourly() override { ++runs; }
};

struct FakeTipPicture : shell::TipPictureSource {
    base::PictureChoice choice;
    base::PictureChoice tipPicture(base::DateValue) override { return choice; }
};

/// The shell without subsystems; a test adds the windows that it is about.
class WindowFixture : public DesktopFixture {
protected:
    /// Opens the module whose window is `Window`, made of the shell's context and these arguments.
    template<typename Window, typename... Arguments>
    Window& load(const shell::ModuleInfo& module, Arguments&... arguments) {
        windows.add<Window>(module, context, arguments...);
        switcher.loadFirst(module.windowName);
        return dynamic_cast<Window&>(*windows.loaded(module.windowName));
    }
    shell::ModuleWindow* loadedModule() const { return shell::ModuleWindow::loadedIn(windows); }

    FakeBirthAlerts alerts;
    FakeTipPicture tipPicture;
    shell::ShellState state;
    shell::AgentState agent;
    shell::OptionsStore options{files};
    shell::Subsystems subsystems{alerts, {}, tipPicture};
    shell::WindowContext context{state, options, agent, services, subsystems, windows, switcher, &notification};
    shell::ModuleSwitcher switcher{context};
    shell::WindowRegistry windows{events};
};

} // namespace velmoriax::test
