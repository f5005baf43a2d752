// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/windows/date_steppers.h"

#include "biorhythm/stepper_dates.h"
#include "biorhythm/windows/stepper.h"

#include <QSignalBlocker>

namespace velmoriax::biorhythm {

DateSteppers::DateSteppers(Stepper& day, Stepper& month, Stepper& year) : day_(day), month_(month), year_(year) {
    year_.setRange(firstStepperYear, lastStepperYear);
    day_.setRange(1, stepperDays(firstStepperYear, 1));
    for (Stepper* stepper : {&day_, &month_, &year_})
        QObject::connect(stepper, &Stepper::valueChanged, stepper, [this] { stepped(); });
}

base::CivilDate DateSteppers::date() const {
    return {year_.value(), month_.value(), day_.value()};
}

void DateSteppers::show(base::CivilDate date) {
    // The bound comes before the day: a 31 is to stand where a shorter month stood.
    const QSignalBlocker quiet(&day_);
    day_.setMaximum(stepperDays(date.year, date.month));
    day_.setValue(date.day);
    month_.showValue(date.month);
    year_.showValue(date.year);
}

void DateSteppers::stepped() {
    const base::CivilDate within = limitDays(date());
    show(within);
    if (changed) changed(within);
}

} // namespace velmoriax::biorhythm
