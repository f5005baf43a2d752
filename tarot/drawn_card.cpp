// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/drawn_card.h"

#include "base/number_text.h"
#include "base/rounding.h"

namespace velmoriax::tarot {

DrawnCard drawnMajor(int total, std::string_view applicationDirectory, std::string_view tipocartas, CardState& state) {
    DrawnCard drawn;
    drawn.card = base::toInt16(reducedToMajor(total));
    drawn.pictureFile = majorPictureFile(drawn.card);
    drawn.picturePath = majorPictureDir(applicationDirectory, tipocartas) + drawn.pictureFile;
    state.currentCard = drawn.card;
    fillCardTipName(state);
    drawn.tip = state.cardTipNames[static_cast<std::size_t>(drawn.card - 1)];
    return drawn;
}

DigitReading sumcartdia(std::string_view Fecha, std::string_view applicationDirectory, std::string_view tipocartas,
                        CardState& state) {
    const std::int16_t sum = base::toInt16(base::digitSum(Fecha));
    return {sum, drawnMajor(sum, applicationDirectory, tipocartas, state)};
}

DrawnCard drawnMinor(int total, Suit suit, std::string_view applicationDirectory) {
    DrawnCard drawn;
    drawn.card = base::toInt16(reducedToMinor(total));
    drawn.pictureFile = minorPictureFile(suit, drawn.card);
    drawn.picturePath = minorPictureDir(applicationDirectory) + drawn.pictureFile;
    return drawn;
}

} // namespace velmoriax::tarot
