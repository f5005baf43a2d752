// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/windows/date_spin_boxes.h"

#include "biorhythm/view_dates.h"
#include "widgets/spin_box.h"

#include <QSignalBlocker>

namespace velmoriax::biorhythm {

DateSpinBoxes::DateSpinBoxes(widgets::SpinBox& day, widgets::SpinBox& month, widgets::SpinBox& year) :
    day_(day), month_(month), year_(year) {
    year_.setRange(firstViewYear, lastViewYear);
    day_.setRange(1, daysInViewMonth(firstViewYear, 1));
    for (widgets::SpinBox* box : {&day_, &month_, &year_})
        QObject::connect(box, &widgets::SpinBox::valueChanged, box, [this] { stepped(); });
}

base::CivilDate DateSpinBoxes::date() const {
    return {year_.value(), month_.value(), day_.value()};
}

void DateSpinBoxes::show(base::CivilDate date) {
    // The bound comes before the day: a 31 is to stand where a shorter month stood.
    const QSignalBlocker quiet(&day_);
    day_.setMaximum(daysInViewMonth(date.year, date.month));
    day_.setValue(date.day);
    month_.showValue(date.month);
    year_.showValue(date.year);
}

void DateSpinBoxes::stepped() {
    const base::CivilDate within = limitDays(date());
    show(within);
    if (changed) changed(within);
}

} // namespace velmoriax::biorhythm
