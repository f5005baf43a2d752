// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/message_boxes.h"
#include "shell/shell_state.h"
#include "tarot/card_catalogue.h"

namespace velmoriax::tarot {

/// The rounding of a card's corners, as a share of its width.
inline constexpr double cardCornerShare = 0.045;

/// Shows the description of `currentCard` in an information box, titled with the card's name, with
/// `cardDescriptionOpen` true while it is open. Outside 1 to 22 nothing is shown.
void showCardDescription(const CardState& cards, shell::ShellState& flags, platform::MessageBoxes& boxes);

} // namespace velmoriax::tarot
