// SPDX-License-Identifier: GPL-3.0-or-later
#include "program/modules.h"

#include "biorhythm/windows/biorhythm_windows.h"
#include "shell/windows/shell_windows.h"
#include "sky/windows/sky_windows.h"
#include "tarot/windows/tarot_windows.h"

namespace velmoriax::program {

Modules::Modules(shell::DesktopServices& desktop) :
    options(desktop.files), signTip({desktop.files, desktop.zone}, sky),
    moonTip({desktop.files, desktop.zone, desktop.events, options}), cardTip(desktop.files, options, cards.cards),
    biorhythmsForShell(biorhythms, {desktop.clock, desktop.files, desktop.sounds, options}),
    subsystems{biorhythmsForShell, {&cardTip, &signTip, &biorhythmsForShell, &moonTip}, moonTip},
    tarotContext{cards, sky, biorhythmsForShell}, context{state,      options, agent,   desktop,
                                                          subsystems, windows, switcher},
    switcher(context), windows(desktop.events) {
    addWindows();
}

/// A new module is one line here.
void Modules::addWindows() {
    shell::addWindows(windows, context);
    sky::addWindows(windows, context);
    tarot::addWindows(windows, context, tarotContext);
    biorhythm::addWindows(windows, context, biorhythms);
}

void Modules::setNotification(platform::Notification* notification) {
    context.notification = notification;
    biorhythmsForShell.notification = notification;
}

} // namespace velmoriax::program
