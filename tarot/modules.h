// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/modules.h"

/// The five modules of the cards, with their menus and buttons.
namespace velmoriax::tarot {

extern const shell::ModuleInfo cardOfDayModule; ///< starts hidden on "True" alone
extern const shell::ModuleInfo anotherDayModule;
extern const shell::ModuleInfo oracleModule;
extern const shell::ModuleInfo namesModule;
extern const shell::ModuleInfo numbersModule;

} // namespace velmoriax::tarot
