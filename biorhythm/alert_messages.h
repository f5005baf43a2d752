// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "biorhythm/cycle_table.h"

#include <array>
#include <string>
#include <string_view>

/// What a moment of the four cycles has to say: the beginning of phases, a critical period, a crossing.
namespace velmoriax::biorhythm {

/// The end of a line in all texts of this room.
inline constexpr std::string_view lineBreak = "\r\n";

/// The cycles around a moment.
struct CyclesAround {
    CycleValues cycleBack; ///< an hour before
    CycleValues cycle;
    CycleValues cycleNext; ///< an hour after
};

/// The messages of a moment; empty where there is nothing to say.
struct AlertMessages {
    std::array<std::string_view, cycleCount> phases;
    std::string_view critical;
    std::string_view crossing;

    bool operator==(const AlertMessages&) const = default;
};

/// A turning point within an hour around the moment: an ascending phase begins at a trough, a descending one at a peak.
/// Each cycle speaks for itself.
std::array<std::string_view, cycleCount> phaseMessages(const CyclesAround& around);

/// The first cycle that stands strictly between -0.1 and 0.1 (32-bit bounds) and moves. This is a state and no event: a
/// cycle near zero keeps its message as long as it stays there.
std::string_view criticalMessage(const CyclesAround& around);

/// The first pair of a rising and a falling cycle of which one passes the other within the hour. The first cycle's
/// present value is set against the other's value of the next hour, so that some crossings pass unnoticed.
std::string_view crossingMessage(const CyclesAround& around);

AlertMessages messagesOf(const CyclesAround& around);

/// The phase messages that are not empty, joined by line breaks.
std::string joinAlertTexts(const std::array<std::string_view, cycleCount>& phases);

} // namespace velmoriax::biorhythm
