// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "biorhythm/bio_state.h"
#include "shell/average_gauge.h"

namespace velmoriax::biorhythm {

/// Computes the record's birth for today and now.
shell::AverageGauge drawBioMedia(BioState& state, base::DateValue now);

} // namespace velmoriax::biorhythm
