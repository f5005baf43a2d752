// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/modules.h"

#include <optional>
#include <span>
#include <string_view>

/// The ways between the windows, as tables: the menus of each module and what its buttons lead to.
namespace velmoriax::shell {

enum class Command {
    goTo,    ///< hand over to another module
    hide,    ///< hide the window
    options, ///< show the options dialog beside the module
    about,   ///< show the about box beside the module
    help,    ///< open the help
    exit,    ///< end the program
    own,     ///< the window's own business, found by the entry's name
    submenu, ///< opens the entries that stand one level deeper behind it
    separator
};

struct MenuEntry {
    std::string_view name; ///< control name
    std::string_view caption;
    Command command = Command::own;
    Module target = Module::cardOfDay; ///< for goTo
    int depth = 0;                     ///< 1 for the entries of a submenu
    bool checkable = false;
};

struct Menu {
    std::string_view name;
    std::string_view caption;
    std::span<const MenuEntry> entries;
};

/// What a button or picture of a window leads to.
struct ButtonRow {
    std::string_view name;
    Command command = Command::goTo;
    Module target = Module::cardOfDay;
};

struct ModuleNavigation {
    Module module;
    std::span<const ButtonRow> buttons;
    std::span<const Menu> mainMenus;
    Menu iconMenu; ///< the tray's popup menu "MnuIcon"
};

const ModuleNavigation& navigationOf(Module module);

} // namespace velmoriax::shell
