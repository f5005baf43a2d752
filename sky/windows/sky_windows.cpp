// SPDX-License-Identifier: GPL-3.0-or-later
#include "sky/windows/sky_windows.h"

#include "shell/windows/window_registry.h"
#include "sky/windows/frm_moon_phase.h"

namespace velmoriax::sky {

void addWindows(shell::WindowRegistry& windows, shell::WindowContext& context) {
    windows.add<FrmMoonPhase>(context);
}

} // namespace velmoriax::sky
