// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velmoriax::shell {

class WindowRegistry;
struct WindowContext;

/// Adds the windows that can be open beside every module: options, about box, notification and personal tooltip.
void addWindows(WindowRegistry& windows, WindowContext& context);

} // namespace velmoriax::shell
