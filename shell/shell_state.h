// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velmoriax::shell {

/// The flags that windows share. They guard against handlers that run inside one another while pending events
/// are processed; there are no locks.
struct ShellState {
    bool viewLoading = false;         ///< a module is inside its load routine: no tip may start
    bool refreshingView = false;      ///< the card of the day is running its load routine on a live window
    bool closingAll = false;          ///< the program is ending: no sound of a module change; never cleared
    bool trayBusy = false;            ///< the tray tip must not start
    bool notifOpen = false;           ///< the notification is fully up
    bool noTrayAdd = false;           ///< no icon is added: the profile list or the compatibility window is open
    bool tipShown = false;            ///< the personal tooltip's content is up
    bool taskBarAtBottom = false;     ///< as last measured
    int taskBarLocation = 0;          ///< 0 left, 1 top, 2 right, 3 bottom; 0 until it is first asked for
    bool trayMissingReported = false; ///< the user knows that this desktop has no place for the icon
    std::string notificationText;     ///< the text that the notification shows, or showed last
    bool cardDescriptionOpen = false; ///< a description box of a card is open: the tray shows no tip over it
};

} // namespace velmoriax::shell
