// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/clock.h"

namespace velmoriax::desktop {

/// The computer's clock in the zone of the desktop.
class SystemClock : public platform::Clock {
public:
    base::DateValue now() const override;
};

} // namespace velmoriax::desktop
