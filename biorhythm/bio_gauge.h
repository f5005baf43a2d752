// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "biorhythm/bio_state.h"
#include "biorhythm/cycle_engine.h"

#include <string>

namespace velmoriax::biorhythm {

/// The average gauge of the Card of the Day: a bar over the whole width, up from the middle for a positive day and down
/// for a negative one.
struct BioGauge {
    std::string labelBioMedia; ///< average and rating
    std::string labelBioInfo;  ///< whose biorhythm it is, by the birth
    float value;               ///< height of the bar, -1 to 1, in full precision
    Colour colour;             ///< of the bar
    Trend trend;               ///< which arrow stands; level hides both
};

/// Computes the record's birth for today and now.
BioGauge drawBioMedia(BioState& state, base::DateValue now);

} // namespace velmoriax::biorhythm
