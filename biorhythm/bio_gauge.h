// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "biorhythm/bio_state.h"
#include "shell/average_gauge.h"

namespace velmoriax::biorhythm {

/// The average of the cycles at the local moment `now`, for the birth of `state`; the results are left in `state`.
shell::AverageGauge drawBioMedia(BioState& state, base::DateValue now);

} // namespace velmoriax::biorhythm
