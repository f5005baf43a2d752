// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/system_clock.h"

#include "desktop/local_fields.h"

#include <algorithm>

namespace velmoriax::desktop {

base::DateValue SystemClock::now() const {
    std::tm fields{};
    if (!localFields(std::time(nullptr), fields)) return 0;
    const base::CivilDate date{fields.tm_year + 1900, fields.tm_mon + 1, fields.tm_mday};
    // A time of day has no second 60: a leap second counts as 59.
    return base::dateValueOf(date, {fields.tm_hour, fields.tm_min, std::min(fields.tm_sec, 59)});
}

} // namespace velmoriax::desktop
