// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "biorhythm/cycle_table.h"

#include <array>
#include <string>
#include <string_view>

/// The messages of a moment: the phases that begin, a critical period, a crossing of two cycles.
namespace velmoriax::biorhythm {

/// The cycles around a moment.
struct CyclesAround {
    CycleValues cycleBack; ///< an hour before
    CycleValues cycle;
    CycleValues cycleNext; ///< an hour after
};

/// The messages of a moment; an empty text where there is none.
struct AlertMessages {
    std::array<std::string_view, cycleCount> phases;
    std::string_view critical;
    std::string_view crossing;

    bool operator==(const AlertMessages&) const = default;
};

/// The message of each cycle that has a turning point within an hour of the moment: at its lowest point an ascending
/// phase begins, at its highest a descending one.
std::array<std::string_view, cycleCount> phaseMessages(const CyclesAround& around);

/// The message of the first cycle that is strictly between -0.1 and 0.1 (32-bit bounds) and changes within the hour. It
/// describes a state, not an event: a cycle keeps its message as long as it is near zero.
std::string_view criticalMessage(const CyclesAround& around);

/// The message of the first pair, one cycle rising and one falling, that cross within the hour. The first cycle's
/// present value is compared with the other's value an hour later, so that some crossings are not found.
std::string_view crossingMessage(const CyclesAround& around);

AlertMessages messagesOf(const CyclesAround& around);

/// The phase messages that are not empty, joined by line breaks.
std::string phaseMessagesJoined(const std::array<std::string_view, cycleCount>& phases);

} // namespace velmoriax::biorhythm
