// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tarot/card_catalogue.h"
#include "tarot/oracle_reading.h"

#include <cstdint>

namespace velmoriax::tarot {

/// Everything of the cards that outlives a window.
struct TarotState {
    CardState cards;
    OracleState oracle;
    std::int16_t gaugeTicks = 0; ///< minutes since the average gauge was drawn anew, over all changes of module
};

} // namespace velmoriax::tarot
