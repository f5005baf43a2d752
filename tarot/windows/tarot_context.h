// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/average_gauge.h"
#include "sky/sky_state.h"
#include "tarot/tarot_state.h"

namespace velmoriax::tarot {

/// What the windows of the cards work with.
struct TarotContext {
    TarotState& state;
    sky::SkyState& sky;
    shell::AverageGaugeSource& gauge;
};

} // namespace velmoriax::tarot
