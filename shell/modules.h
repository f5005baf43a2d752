// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string_view>

namespace velmoriax::shell {

/// The six windows that replace one another. Exactly one is loaded at any moment.
enum class Module { cardOfDay, anotherDay, oracle, names, numbers, biorhythms };

struct ModuleRow {
    Module module;
    std::string_view windowName;
    std::string_view initialText; ///< as the option of the first module names it
};

/// In the order in which the option's text is compared, which is the order of the list in the options dialog.
extern const std::array<ModuleRow, 6> modules;

std::string_view windowNameOf(Module module);

/// The module that the program opens first; the card of the day for an unknown text and for the empty one.
Module firstModule(std::string_view initialText);

/// Whether a module that loads at start stays hidden. The card of the day knows only "True"; the five others accept the
/// Spanish "Verdadero" as well, which old files hold.
bool startsHidden(Module module, std::string_view startMinimized);

} // namespace velmoriax::shell
