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
        QObject::connect(box, &widgets::SpinBox::valueChanged, box, [this] { callChanged(); });
}

void DateSpinBoxes::show(base::CivilDate date) {
    // The bound first: the month shown before may be too short for the day.
    const QSignalBlocker quiet(&day_);
    day_.setMaximum(daysInViewMonth(date.year, date.month));
    day_.setValue(date.day);
    month_.showValue(date.month);
    year_.showValue(date.year);
}

void DateSpinBoxes::callChanged() {
    if (changed) changed({year_.value(), month_.value(), day_.value()});
}

} // namespace velmoriax::biorhythm
