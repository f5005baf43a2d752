// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/windows/shell_windows.h"

#include "shell/windows/frm_about.h"
#include "shell/windows/frm_options.h"
#include "shell/windows/frm_tool_tip.h"
#include "shell/windows/notif.h"
#include "shell/windows/window_registry.h"

namespace velmoriax::shell {

void addWindows(WindowRegistry& windows, WindowContext& context) {
    windows.add<Notif>(context);
    windows.add<FrmToolTip>(context);
    windows.add<FrmOptions>(context);
    windows.add<frmAbout>(context);
}

} // namespace velmoriax::shell
