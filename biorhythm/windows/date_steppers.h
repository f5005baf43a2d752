// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/date_value.h"

#include <functional>

namespace velmoriax::biorhythm {

class Stepper;

/// Three steppers that hold one date. The day is kept within the month's length before anyone hears of a change.
class DateSteppers {
public:
    DateSteppers(Stepper& day, Stepper& month, Stepper& year);
    DateSteppers(const DateSteppers&) = delete;
    DateSteppers& operator=(const DateSteppers&) = delete;

    base::CivilDate date() const;

    /// Puts a whole date on the steppers and tells nobody.
    void show(base::CivilDate date);

    /// Runs when a stepper was moved, with a date that is within the month.
    std::function<void(base::CivilDate)> changed;

private:
    void stepped();

    Stepper& day_;
    Stepper& month_;
    Stepper& year_;
};

} // namespace velmoriax::biorhythm
