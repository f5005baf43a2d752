// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/run_time_error.h"

namespace velmoriax::platform {

/// Ends the program after an error from which it cannot continue.
class FatalStop {
public:
    virtual ~FatalStop() = default;

    /// Shows the error's message in a critical box, removes the tray icon and ends the process with status 1.
    [[noreturn]] virtual void stop(const base::RunTimeError& error) = 0;
};

} // namespace velmoriax::platform
