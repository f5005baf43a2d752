// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/date_value.h"
#include "platform/time_zone.h"

/// Between local and universal time, by what the desktop says of its zone at this moment, whatever the date. When it
/// says nothing, the result is the date value 0, 1899-12-30: there is no other sign.
namespace velmoriax::sky {

base::DateValue localToUniversal(base::DateValue local, const platform::TimeZone& zone);

/// The local moment of a universal time of day on a given day; it may fall on a neighbouring day.
base::DateValue universalToLocal(base::CivilTime time, base::CivilDate day, const platform::TimeZone& zone);

} // namespace velmoriax::sky
