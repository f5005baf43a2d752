// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/windows/qt_values.h"

#include <QCalendarWidget>
#include <QDateEdit>

namespace velmoriax::biorhythm {

void openPicker(QDateEdit& picker) {
    const QLocale english(QLocale::English, QLocale::UnitedStates);
    picker.setLocale(english);
    picker.setDateRange(QDate(100, 1, 1), QDate(9999, 12, 31));
    picker.calendarWidget()->setLocale(english);
    picker.calendarWidget()->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
}

} // namespace velmoriax::biorhythm
