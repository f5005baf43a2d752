// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/files.h"
#include "tarot/oracle_reading.h"

/// What the oracle's window decides and says beside the reading itself.
namespace velmoriax::tarot {

inline constexpr std::string_view dateWarning = "The date must be changed before the read is done!";
inline constexpr std::string_view dateWarningTitle = "Warning";

/// The day that is selected when the month view opens: the chosen date, or today before a choice. Nothing while a
/// reading is under way, which holds its date: then the warning is due.
std::optional<base::CivilDate> dateToOffer(const OracleState& state, base::CivilDate today);

/// The whole text of a card. Throws RunTimeError File not found, naming the file.
std::string cardText(const platform::Files& files, const std::string& path);

/// A card's name for a screen reader, by the suits' names of the window's headings: "Five of Wands",
/// "Knight of Coins". `index` is 1 to 14.
std::string spokenName(Suit suit, int index);

/// The name with the orientation of the card, if there was a real throw: "Five of Wands, inverted".
std::string spokenCard(std::string name, Orientation orientation);

} // namespace velmoriax::tarot
