// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/windows/tarot_windows.h"

#include "shell/windows/window_registry.h"
#include "tarot/modules.h"
#include "tarot/windows/frm_calendar.h"
#include "tarot/windows/frm_carta_dia.h"
#include "tarot/windows/frm_name.h"
#include "tarot/windows/frm_oracle.h"
#include "tarot/windows/frm_velmoriax.h"

namespace velmoriax::tarot {

void addWindows(shell::WindowRegistry& windows, shell::WindowContext& context, TarotContext& tarot) {
    windows.add<FrmCartaDia>(cardOfDayModule, context, tarot);
    windows.add<FrmCalendar>(anotherDayModule, context, tarot);
    windows.add<Frmoracle>(oracleModule, context, tarot);
    windows.add<FrmName>(namesModule, context, tarot);
    windows.add<frmVelmoriax>(numbersModule, context, tarot);
}

} // namespace velmoriax::tarot
