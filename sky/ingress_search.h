// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/date_value.h"
#include "platform/files.h"

#include <cstdint>
#include <optional>

namespace velmoriax::sky {

/// A stay of the Sun in a sign, in universal time. Both limits belong to it.
struct SignStay {
    std::int16_t index = 0; ///< Aries 0 to Pisces 11
    base::DateValue start = 0;
    base::DateValue end = 0;
};

/// Looks a moment in universal time up in the ingress tables of the twelve signs, "\fechas-db\aries.txt" to
/// "\fechas-db\piscis.txt", Aries first; the first stay that holds it wins. Nothing when none does. The tables are read
/// afresh each time.
///
/// A table holds a stay a line, such as "3/20/2005 12:33:00-4/19/2005 23:37:00", and ends at its first empty line. A
/// missing or unreadable table is passed over. In place of a date that cannot be read the one read before
/// it is used.
std::optional<SignStay> findSignStay(const platform::Files& files, base::DateValue moment);

} // namespace velmoriax::sky
