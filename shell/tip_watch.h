// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/shell_state.h"

#include <cstdint>
#include <string_view>

namespace velmoriax::shell {

/// The watch over the pointer on the tray icon: after half a second of rest the tip comes up, and it goes when the
/// pointer leaves. It is called for moves, ticks and clicks, and returns what is to be done; the flags that other
/// windows see
/// (`trayBusy`, `tipShown`) it keeps in the shell's record.
class TipWatch {
public:
    static constexpr int tickMs = 100;

    enum class MoveAction {
        none,
        measure, ///< ask where the icon and the panel are
        showName ///< tips are off: the system's own tip is to show the program's name
    };
    enum class TickAction { none, raise, takeAway };

    /// The pointer moved on the icon. `tooltips` is the option's value as read; `mayStart` is false inside a module's
    /// load and while the description of a card is open.
    MoveAction pointerMoved(std::string_view tooltips, bool mayStart, const ShellState& state);

    /// A tick of the watch. A tip that is raised is marked as busy here; one that is taken away leaves all at rest.
    TickAction tick(std::string_view tooltips, bool pointerOnIcon, ShellState& state);

    /// A click ends the watch. The icon stays busy after it until the pointer has left, so that the tip does not come
    /// up over what the click has opened.
    void clicked(ShellState& state);

    /// Whether ticks have anything to do. Ticks with tips off would do nothing, so that nothing need wake up for them.
    bool wantsTicks(std::string_view tooltips) const;

private:
    bool watching_ = false;
    std::int16_t tipTicks_ = 0; ///< since the pointer came onto the icon, or since the tip was raised
};

} // namespace velmoriax::shell
