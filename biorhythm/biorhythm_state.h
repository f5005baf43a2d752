// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "biorhythm/alert_engine.h"
#include "biorhythm/bio_state.h"
#include "biorhythm/bio_view.h"
#include "biorhythm/second_profile.h"

namespace velmoriax::biorhythm {

/// Owns everything of the biorhythms that outlives a window.
struct BiorhythmState {
    BioState bio;
    AlertState alerts;
    BioViewState view; ///< the dates that are set in the view
    SecondProfile second;
};

} // namespace velmoriax::biorhythm
