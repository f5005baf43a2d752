// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string_view>

/// The ways between the windows, as tables: the menus of a module and what its buttons lead to.
namespace velmoriax::shell {

enum class Command {
    goTo,    ///< hand over to another module
    hide,    ///< hide the window
    options, ///< show the options dialog beside the module
    about,   ///< show the about box beside the module
    help,    ///< open the help
    exit,    ///< end the program
    own,     ///< the window's own business, found by the entry's name
    submenu, ///< opens the entries that follow one level deeper
    separator
};

struct MenuEntry {
    std::string_view name; ///< control name
    std::string_view caption;
    Command command = Command::own;
    std::string_view target{}; ///< for goTo: the name of the module's window
    int depth = 0;             ///< 1 for the entries of a submenu
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
    std::string_view target{};
};

struct ModuleNavigation {
    std::span<const ButtonRow> buttons;
    std::span<const Menu> mainMenus;
    Menu iconMenu; ///< the tray's popup menu "MnuIcon"
};

// The rows of the tables.

constexpr MenuEntry goEntry(std::string_view name, std::string_view caption, std::string_view target, int depth = 0) {
    return {name, caption, Command::goTo, target, depth};
}

constexpr MenuEntry commandEntry(std::string_view name, std::string_view caption, Command command) {
    return {name, caption, command};
}

constexpr MenuEntry checkEntry(std::string_view name, std::string_view caption) {
    return {name, caption, Command::own, {}, 0, true};
}

inline constexpr MenuEntry menuSeparator{"", "", Command::separator};

constexpr Menu iconMenuOf(std::span<const MenuEntry> entries) {
    return {"MnuIcon", "", entries};
}

} // namespace velmoriax::shell
