// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/modules.h"

#include <algorithm>

namespace velmoriax::shell {

const ModuleInfo& firstModule(const ModuleList& modules, std::string_view initialText) {
    const auto found = std::ranges::find(modules, initialText, &ModuleInfo::initialText);
    return found == modules.end() ? *modules.front() : **found;
}

bool startsHidden(const ModuleInfo& module, std::string_view startMinimized) {
    return startMinimized == "True" || (module.startsHiddenOnVerdadero && startMinimized == "Verdadero");
}

} // namespace velmoriax::shell
