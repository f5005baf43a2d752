// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/date_value.h"

namespace velmoriax::platform {

/// The present, for which the program asks nothing else.
class Clock {
public:
    virtual ~Clock() = default;

    /// Local date and time of day in whole seconds, from calendar fields and never computed from an instant; 0 when the
    /// system has no answer.
    virtual base::DateValue now() const = 0;
};

} // namespace velmoriax::platform
