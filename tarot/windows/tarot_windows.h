// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tarot/windows/tarot_context.h"

namespace velmoriax::shell {
class WindowRegistry;
struct WindowContext;
} // namespace velmoriax::shell

namespace velmoriax::tarot {

/// Adds the five modules of the cards.
void addWindows(shell::WindowRegistry& windows, shell::WindowContext& context, TarotContext& tarot);

} // namespace velmoriax::tarot
