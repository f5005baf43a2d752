// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/windows/card_description.h"

#include "tarot/card_descriptions.h"

namespace velmoriax::tarot {

void showCardDescription(const CardState& cards, shell::ShellState& flags, platform::MessageBoxes& boxes) {
    std::string description;
    for (const std::string_view piece : cardDescriptionPieces(cards.currentCard)) description += piece;
    if (description.empty()) return;
    flags.cardDescriptionOpen = true;
    boxes.show(platform::BoxIcon::information, description, std::string(majorCard(cards.currentCard).tipName));
    flags.cardDescriptionOpen = false;
}

} // namespace velmoriax::tarot
