// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/windows/card_description.h"

#include "tarot/card_descriptions.h"

namespace velmoriax::tarot {

void showCardDescription(CardState& state, platform::MessageBoxes& boxes) {
    std::string description;
    for (const std::string_view piece : cardDescriptionPieces(state.currentCard)) description += piece;
    if (description.empty()) return;
    state.cardDescriptionOpen = true;
    boxes.show(platform::BoxIcon::information, description, std::string(majorCard(state.currentCard).tipName));
    state.cardDescriptionOpen = false;
}

} // namespace velmoriax::tarot
