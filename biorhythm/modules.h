// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/modules.h"

namespace velmoriax::biorhythm {

/// The Biorhythm view with its menus.
extern const shell::ModuleInfo biorhythmsModule;

} // namespace velmoriax::biorhythm
