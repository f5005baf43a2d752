// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/fatal_stop.h"

#include <functional>

namespace velmoriax::desktop {

/// Shows the error's message in a critical box, then exits with status 1. A request to end the program closes the box.
class FatalBox : public platform::FatalStop {
public:
    /// Removes the tray icon; called after the box.
    std::function<void()> removeIcon;

    [[noreturn]] void stop(const base::RunTimeError& error) override;
};

} // namespace velmoriax::desktop
