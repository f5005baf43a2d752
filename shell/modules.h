// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/navigation.h"

#include <span>
#include <string_view>
#include <vector>

namespace velmoriax::shell {

/// One of the windows that replace one another; exactly one is loaded at any moment. Each subsystem has a table of its
/// modules. They are known to one another by the name of the window.
struct ModuleInfo {
    std::string_view windowName;
    std::string_view initialText;        ///< as the option of the first module and its list name it
    bool startsHiddenOnVerdadero = true; ///< old files hold the Spanish word
    ModuleNavigation navigation{};
};

/// All modules in the order in which the option's text is compared, which is the order of the list in the options
/// dialog. The first one is the module for an unknown text.
using ModuleList = std::vector<const ModuleInfo*>;

/// The module that the program opens first; the first of the list for an unknown text and for the empty one. The list
/// holds one at least.
const ModuleInfo& firstModule(const ModuleList& modules, std::string_view initialText);

/// Whether a module that loads at start stays hidden.
bool startsHidden(const ModuleInfo& module, std::string_view startMinimized);

} // namespace velmoriax::shell
