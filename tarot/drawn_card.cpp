// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/drawn_card.h"

#include "base/number_text.h"
#include "base/rounding.h"

namespace velmoriax::tarot {

DrawnCard drawnMajor(int total, const Deck& deck, CardState& state) {
    DrawnCard drawn;
    drawn.card = base::toInt16(reducedToMajor(total));
    drawn.pictureFile = majorPictureFile(drawn.card);
    drawn.cardPath = majorPictureDir(deck) + drawn.pictureFile;
    state.currentCard = drawn.card;
    fillCardTipName(state);
    drawn.tip = state.cardTipNames[static_cast<std::size_t>(drawn.card - 1)];
    return drawn;
}

DigitReading sumcartdia(std::string_view Fecha, const Deck& deck, CardState& state) {
    const std::int16_t sum = base::toInt16(base::digitSum(Fecha));
    return {sum, drawnMajor(sum, deck, state)};
}

DrawnCard drawnMinor(int total, Suit suit, std::string_view applicationDirectory) {
    DrawnCard drawn;
    drawn.card = base::toInt16(reducedToMinor(total));
    drawn.pictureFile = minorPictureFile(suit, drawn.card);
    drawn.cardPath = minorPictureDir(applicationDirectory) + drawn.pictureFile;
    return drawn;
}

} // namespace velmoriax::tarot
