// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/windows/qt_values.h"

#include "shell/windows/night_calendar.h"

#include <QDateEdit>

namespace velmoriax::biorhythm {

void openPicker(QDateEdit& picker) {
    picker.setLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    shell::makeNightCalendar(*picker.calendarWidget());
    picker.setDateRange({100, 1, 1}, {9999, 12, 31});
}

} // namespace velmoriax::biorhythm
