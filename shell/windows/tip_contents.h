// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/tray_tip.h"
#include "shell/windows/process.h"

namespace velmoriax::shell {

/// The tip's texts for this moment, from the record and the hub.
std::string balloonTextNow(Process& process);
PersonalTip personalTipNow(Process& process);

} // namespace velmoriax::shell
