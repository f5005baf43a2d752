// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sky/sky_state.h"

namespace velmoriax::shell {
class WindowRegistry;
struct WindowContext;
} // namespace velmoriax::shell

namespace velmoriax::sky {

/// Adds the window of the moon details.
void addWindows(shell::WindowRegistry& windows, shell::WindowContext& context, SkyState& sky);

} // namespace velmoriax::sky
