// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/card_tip.h"

#include "base/date_text.h"
#include "tarot/drawn_card.h"

namespace velmoriax::tarot {

std::string CardTip::tipLine(base::DateValue now) {
    tipcartadia(base::civilDateOf(now));
    return tipCard_;
}

void CardTip::tipcartadia(base::CivilDate today) {
    if (cardDate_ == today) return;
    const auto reading = sumcartdia(base::shortDateText(today), deckInUse(files_, options_), cards_);
    cardDate_ = today;
    tipCard_ = "Card of Day: " + reading.drawn.tip;
}

} // namespace velmoriax::tarot
