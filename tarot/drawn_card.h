// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tarot/card_catalogue.h"

namespace velmoriax::tarot {

/// How a card lies. Only a real throw of the oracle turns cards; every other card is upright and says nothing of it.
enum class Orientation { notThrown, normal, inverted };

/// A card as a reading brings it up, with what a window shows of it.
struct DrawnCard {
    std::int16_t card = 0;   ///< 1 to 22 of the major arcana, 1 to 14 of a suit
    std::string pictureFile; ///< as the logs name the card
    std::string cardPath;
    std::string tip; ///< the `cardTipNames` entry of a major card; minor cards have no names
    Orientation orientation = Orientation::notThrown;
};

/// Reduces a total to a major card, leaves it in `currentCard` and fills its name.
/// Throws RunTimeError Subscript out of range for a total below 1.
DrawnCard drawnMajor(int total, const Deck& deck, CardState& state);

/// A card and the digit sum from which it was reduced.
struct DigitReading {
    std::int16_t digitSum = 0; ///< unreduced
    DrawnCard drawn;
};

/// The card of a date: the sum of the digits of its text, reduced as above. The order of the fields, separators and
/// leading zeros do not count. Throws as above for a text without a digit above 0.
DigitReading sumcartdia(std::string_view Fecha, const Deck& deck, CardState& state);

/// Reduces a total to a card of a suit. Throws as above.
DrawnCard drawnMinor(int total, Suit suit, std::string_view applicationDirectory);

} // namespace velmoriax::tarot
