// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/tip_watch.h"

#include "shell/options.h"

#include <algorithm>

namespace velmoriax::shell {

namespace {

constexpr std::int16_t restTicks = 5;

} // namespace

TipWatch::MoveAction TipWatch::pointerMoved(std::string_view tooltips, bool mayStart, const ShellState& state) {
    if (mayStart) watching_ = true;
    if (state.trayBusy) return MoveAction::none;
    if (tooltips == word::tooltipsOn) return MoveAction::measure;
    return tooltips == word::tooltipsOff ? MoveAction::showName : MoveAction::none;
}

TipWatch::TickAction TipWatch::tick(std::string_view tooltips, bool pointerOnIcon, ShellState& state) {
    if (!wantsTicks(tooltips)) return TickAction::none;
    // Only five count: a pointer that rests for an hour must not run over the counter's end.
    tipTicks_ = std::min<std::int16_t>(static_cast<std::int16_t>(tipTicks_ + 1), restTicks);
    if (!pointerOnIcon) {
        *this = {};
        state.tipShown = false;
        state.trayBusy = false;
        return TickAction::takeAway;
    }
    if (tipTicks_ < restTicks || state.trayBusy || state.tipShown) return TickAction::none;
    tipTicks_ = 0;
    state.trayBusy = true;
    return TickAction::raise;
}

void TipWatch::clicked(ShellState& state) {
    watching_ = false;
    state.trayBusy = true;
}

bool TipWatch::wantsTicks(std::string_view tooltips) const {
    return watching_ && tooltips != word::tooltipsOff;
}

} // namespace velmoriax::shell
