// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/date_picker.h"

#include "widgets/calendar.h"

#include <QDateEdit>

namespace velmoriax::widgets {

void setUpDatePicker(QDateEdit& picker) {
    picker.setLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    setUpCalendar(*picker.calendarWidget());
    picker.setDateRange({100, 1, 1}, {9999, 12, 31});
}

} // namespace velmoriax::widgets
