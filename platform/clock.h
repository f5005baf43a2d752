// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/date_value.h"

namespace velmoriax::platform {

/// The only place that knows the present.
class Clock {
public:
    virtual ~Clock() = default;

    /// Local date and time of day in whole seconds, taken from calendar fields and never from an instant.
    virtual base::DateValue now() const = 0;
};

} // namespace velmoriax::platform
