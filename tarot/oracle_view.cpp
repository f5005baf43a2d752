// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/oracle_view.h"

#include "base/run_time_error.h"
#include "base/windows1252.h"

namespace velmoriax::tarot {

namespace {

constexpr std::array<std::string_view, suitCards> spokenIndexes{
    "Ace", "Two", "Three", "Four", "Five", "Six", "Seven", "Eight", "Nine", "Ten", "Page", "Knight", "Queen", "King"};

/// In the order of Suit.
constexpr std::array<std::string_view, 4> spokenSuits{"Wands", "Cups", "Swords", "Coins"};

} // namespace

std::optional<base::CivilDate> dateToOffer(const OracleState& state, base::CivilDate today) {
    if (state.readingStarted) return std::nullopt;
    return state.dateChosen ? state.readingDate : today;
}

std::string cardText(const platform::Files& files, const std::string& path) {
    const auto content = files.read(path);
    if (content.status != platform::Files::Status::read)
        throw base::RunTimeError(base::RunTimeError::Code::fileNotFound, path);
    return base::fromWindows1252(content.bytes);
}

std::string spokenName(Suit suit, int index) {
    return std::string(spokenIndexes.at(static_cast<std::size_t>(index - 1)))
        .append(" of ")
        .append(spokenSuits[static_cast<std::size_t>(suit)]);
}

std::string spokenCard(std::string name, Orientation orientation) {
    if (orientation == Orientation::notThrown) return name;
    return name.append(orientation == Orientation::inverted ? ", inverted" : ", upright");
}

} // namespace velmoriax::tarot
