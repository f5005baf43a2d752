// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/modules.h"

#include <algorithm>

namespace velmoriax::shell {

const std::array<ModuleRow, 6> modules{{
    {Module::cardOfDay, "FrmCartaDia", "The Card of Day..."},
    {Module::anotherDay, "FrmCalendar", "Another Day..."},
    {Module::oracle, "Frmoracle", "Oracle"},
    {Module::names, "FrmName", "Names"},
    {Module::numbers, "frmVelmoriax", "Numbers"},
    {Module::biorhythms, "frmBio", "Biorhythms"},
}};

std::string_view windowNameOf(Module module) {
    return std::ranges::find(modules, module, &ModuleRow::module)->windowName;
}

Module firstModule(std::string_view initialText) {
    const auto* row = std::ranges::find(modules, initialText, &ModuleRow::initialText);
    return row == modules.end() ? Module::cardOfDay : row->module;
}

bool startsHidden(Module module, std::string_view startMinimized) {
    return startMinimized == "True" || (module != Module::cardOfDay && startMinimized == "Verdadero");
}

} // namespace velmoriax::shell
