// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "biorhythm/biorhythm_state.h"

namespace velmoriax::shell {
class WindowRegistry;
struct WindowContext;
} // namespace velmoriax::shell

namespace velmoriax::biorhythm {

/// Adds the Biorhythm view and the windows beside it.
void addWindows(shell::WindowRegistry& windows, shell::WindowContext& context, BiorhythmState& biorhythms);

} // namespace velmoriax::biorhythm
