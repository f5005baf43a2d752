// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velmoriax::shell {
class WindowRegistry;
struct WindowContext;
} // namespace velmoriax::shell

namespace velmoriax::sky {

/// Adds the window of the moon details.
void addWindows(shell::WindowRegistry& windows, shell::WindowContext& context);

} // namespace velmoriax::sky
