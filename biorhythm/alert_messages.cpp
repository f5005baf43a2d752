// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/alert_messages.h"

#include "base/text_lines.h"

namespace velmoriax::biorhythm {

namespace {

struct PhaseRow {
    std::string_view ascending;
    std::string_view descending;
};
constexpr std::array<PhaseRow, cycleCount> phaseTable{{
    {"Your physical cycle begins an ascending phase!", "Your physical cycle begins a descending phase!"},
    {"Your emotional cycle begins an ascending phase!", "Your emotional cycle begins a descending phase!"},
    {"Your intellectual cycle begins an ascending phase!", "Your intellectual cycle begins a descending phase!"},
    {"Your intuitive cycle begins an ascending phase!", "Your intuitive cycle begins a descending phase!"},
}};

constexpr float criticalBound = 0.1F;

struct CriticalRow {
    std::string_view passive; ///< falling
    std::string_view active;  ///< rising
};
constexpr std::array<CriticalRow, cycleCount> criticalTable{{
    {"Your physical cycle enter in a critical period and advance toward a passive phase, so take it easy!",
     "Your physical cycle enter in a critical period and advance toward an active phase, with caution prepare for "
     "action!"},
    {"Your emotional cycle enter in a critical period and advance toward a passive phase, better forget of feelings!",
     "Your emotional cycle enter in a critical period and advance toward an active phase, begin to put the direct!"},
    {"Your intellectual cycle enter in a critical period and advance toward a passive phase, don't warm your head!",
     "Your intellectual cycle enter in a critical period and advance toward an active phase, mind begins to be in "
     "form!"},
    {"Your intuitive cycle enter in a critical period and advance toward a passive phase, the intuition won't be of "
     "great help!",
     "Your intuitive cycle enter in a critical period and advance toward an active phase, in case of doubt the "
     "intuition can help!"},
}};

struct CrossingRow {
    std::size_t a;
    std::size_t b;
    std::string_view upward;   ///< a rises through b
    std::string_view downward; ///< a falls through b
};
constexpr std::array<CrossingRow, 6> crossingTable{{
    {physical, emotional, "Crossing upward physical cycle to emotional, strength imposes over feelings!",
     "Crossing downward physical cycle to emotional, feelings emerge while strength decreases!"},
    {physical, intellectual, "Crossing upward physical cycle to intellectual, the brute force imposes over mind!",
     "Crossing downward physical cycle to intellectual, mind imposes over strength!"},
    {physical, intuition, "Crossing upward physical cycle to intuitive, the brute force overcomes intuition!",
     "Crossing downward physical cycle to intuitive, intuition will be an allied while strength decreases!"},
    {emotional, intellectual, "Crossing upward emotional cycle to intellectual, feelings emerge over mind!",
     "Crossing downward emotional cycle to intellectual, mind overcomes feelings!"},
    {emotional, intuition, "Crossing upward emotional cycle to intuitive, feelings emerge over intuition!",
     "Crossing downward emotional cycle to intuitive, intuition overcomes feelings!"},
    {intellectual, intuition, "Crossing upward intellectual cycle to intuitive, mind emerges over intuition!",
     "Crossing downward intellectual cycle to intuitive, intuition will be an allied while intellect decreases!"},
}};

std::string_view phaseMessage(const PhaseRow& row, float back, float now, float next) {
    if (now <= back && next > now) return row.ascending;
    if (now >= back && next < now) return row.descending;
    return {};
}

std::string_view crossingOf(const CrossingRow& row, const CyclesAround& around) {
    const float a = around.cycle[row.a];
    const float b = around.cycle[row.b];
    const float aNext = around.cycleNext[row.a];
    const float bNext = around.cycleNext[row.b];
    if (a < aNext && b > bNext && a < b && a > bNext) return row.upward;
    if (a > aNext && b < bNext && a > b && a < bNext) return row.downward;
    return {};
}

} // namespace

std::array<std::string_view, cycleCount> phaseMessages(const CyclesAround& around) {
    std::array<std::string_view, cycleCount> messages;
    for (std::size_t i = 0; i < cycleCount; ++i)
        messages[i] = phaseMessage(phaseTable[i], around.cycleBack[i], around.cycle[i], around.cycleNext[i]);
    return messages;
}

std::string_view criticalMessage(const CyclesAround& around) {
    for (std::size_t i = 0; i < cycleCount; ++i) {
        const float now = around.cycle[i];
        if (now <= -criticalBound || now >= criticalBound) continue;
        if (now > around.cycleNext[i]) return criticalTable[i].passive;
        if (now < around.cycleNext[i]) return criticalTable[i].active;
    }
    return {};
}

std::string_view crossingMessage(const CyclesAround& around) {
    for (const CrossingRow& row : crossingTable)
        if (const auto message = crossingOf(row, around); !message.empty()) return message;
    return {};
}

AlertMessages messagesOf(const CyclesAround& around) {
    return {phaseMessages(around), criticalMessage(around), crossingMessage(around)};
}

std::string phaseMessagesJoined(const std::array<std::string_view, cycleCount>& phases) {
    std::string joined;
    for (const std::string_view message : phases) {
        if (message.empty()) continue;
        if (!joined.empty()) joined += base::lineEnd;
        joined += message;
    }
    return joined;
}

} // namespace velmoriax::biorhythm
