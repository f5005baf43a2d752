// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "biorhythm/biorhythms_for_shell.h"
#include "shell/windows/module_switcher.h"
#include "shell/windows/window_context.h"
#include "shell/windows/window_registry.h"
#include "sky/sky_tips.h"
#include "tarot/card_tip.h"
#include "tarot/windows/tarot_context.h"

namespace velmoriax::program {

/// The modules on a desktop: the state of each subsystem, what they ask of one another, and their windows. Nothing is
/// loaded yet.
struct Modules {
    explicit Modules(shell::DesktopServices& desktop);
    Modules(const Modules&) = delete;
    Modules& operator=(const Modules&) = delete;

    /// Alerts and messages show through this from now on.
    void setNotification(platform::Notification* notification);

    shell::ShellState state;
    shell::AgentState agent;
    shell::OptionsStore options;

    sky::SkyState sky;
    sky::SignTip signTip;
    sky::MoonTip moonTip;

    tarot::TarotState cards;
    tarot::CardTip cardTip;

    biorhythm::BiorhythmState biorhythms;
    biorhythm::BiorhythmsForShell biorhythmsForShell;

    shell::Subsystems subsystems;
    tarot::TarotContext tarotContext;
    shell::WindowContext context; ///< outlives the windows
    shell::ModuleSwitcher switcher;
    shell::WindowRegistry windows;

private:
    void addWindows();
};

} // namespace velmoriax::program
