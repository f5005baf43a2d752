// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/local_fields.h"

namespace velmoriax::desktop {

bool localFields(std::time_t instant, std::tm& fields) {
    ::tzset();
    return ::localtime_r(&instant, &fields) != nullptr;
}

} // namespace velmoriax::desktop
