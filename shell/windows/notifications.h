// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/notification.h"
#include "shell/windows/window_context.h"

#include <memory>

namespace velmoriax::shell {

/// How long what is shown at the start waits, in milliseconds: the slide would hold up the first window, which is
/// to be shown before anything slides over it.
constexpr int firstWindowDelayMs = 250;

/// The one that suits this desktop.
std::unique_ptr<platform::Notification> makeNotification(WindowContext& context);

/// A notification that is shown is closed together with the module that is minimised there.
void closeNotification(WindowContext& context);

} // namespace velmoriax::shell
