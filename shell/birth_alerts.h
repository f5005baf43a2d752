// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/date_value.h"

namespace velmoriax::shell {

/// What the hub and the tray tip ask of the subsystem that knows the user's birth.
class BirthAlerts {
public:
    virtual ~BirthAlerts() = default;

    /// The program starts: makes the files that are missing and reads the birth date.
    virtual void loadAtStart() = 0;

    /// The birth date as it was read last; January 1, 1900 when none is set.
    virtual base::CivilDate birthDate() const = 0;

    /// The one run at the start of the program, and the run of each half hour.
    virtual void runAtStart() = 0;
    virtual void runHalfHourly() = 0;
};

} // namespace velmoriax::shell
