// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/time_zone.h"

namespace velmoriax::desktop {

/// The zone of the desktop, read at each call.
class SystemTimeZone : public platform::TimeZone {
public:
    platform::ZoneInfo current() const override;
};

} // namespace velmoriax::desktop
