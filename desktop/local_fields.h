// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <ctime>

namespace velmoriax::desktop {

/// Calendar fields of an instant in the zone as it is set now, which may have changed since the last call. False when
/// the instant has none.
bool localFields(std::time_t instant, std::tm& fields);

} // namespace velmoriax::desktop
