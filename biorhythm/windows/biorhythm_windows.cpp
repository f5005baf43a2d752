// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/windows/biorhythm_windows.h"

#include "biorhythm/modules.h"
#include "biorhythm/windows/form_mod.h"
#include "biorhythm/windows/form_snap.h"
#include "biorhythm/windows/frm_bio.h"
#include "biorhythm/windows/frm_compa_tab.h"
#include "biorhythm/windows/frm_profiles.h"
#include "shell/windows/window_registry.h"

namespace velmoriax::biorhythm {

void addWindows(shell::WindowRegistry& windows, shell::WindowContext& context, BiorhythmState& biorhythms) {
    windows.add<frmBio>(biorhythmsModule, context, biorhythms);
    windows.add<FrmProfiles>(context);
    windows.add<FormMod>(context);
    windows.add<FormSnap>(context);
    windows.add<FrmCompaTab>(context, biorhythms);
}

} // namespace velmoriax::biorhythm
