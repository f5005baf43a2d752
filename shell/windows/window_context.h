// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/notification.h"
#include "shell/background_agent.h"
#include "shell/birth_alerts.h"
#include "shell/options_store.h"
#include "shell/shell_state.h"
#include "shell/tip_line_source.h"
#include "shell/tip_picture_source.h"
#include "shell/windows/desktop_services.h"

#include <vector>

namespace velmoriax::shell {

class ModuleSwitcher;
class WindowRegistry;

/// What the shell asks of the subsystems.
struct Subsystems {
    BirthAlerts& alerts;
    std::vector<TipLineSource*> tipLines; ///< in the order of the lines
    TipPictureSource& tipPicture;
};

/// What every window is given: the state of the shell, the desktop and the other windows. The entry owns all of it.
struct WindowContext {
    ShellState& state;
    OptionsStore& options;
    AgentState& agent;
    DesktopServices& desktop;
    Subsystems& subsystems;
    WindowRegistry& windows;
    ModuleSwitcher& switcher;
    platform::Notification* notification = nullptr; ///< set by the entry, once there is one
};

} // namespace velmoriax::shell
