// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/windows/frm_timer.h"

#include "shell/modules.h"
#include "shell/windows/module_window.h"
#include "shell/windows/window_registry.h"

namespace velmoriax::shell {

FrmTimer::FrmTimer(Process& process) : process_(process) {}

void FrmTimer::load() {
    OptionsStore& options = process_.record.options;
    options.readAtStart();
    process_.windows.touch(firstModule(options.leerModuloInicial()), process_);
}

} // namespace velmoriax::shell
