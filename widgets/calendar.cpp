// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/calendar.h"

#include "widgets/look.h"
#include "widgets/typed_date.h"

#include <QCalendarWidget>
#include <QTextCharFormat>
#include <QToolButton>

namespace velmoriax::widgets {

namespace {

QTextCharFormat lettersIn(const QColor& colour) {
    QTextCharFormat format;
    format.setForeground(colour);
    return format;
}

/// The style sheet leaves the two arrows without an icon.
void setArrow(const QCalendarWidget& calendar, const char* button, const char* picture) {
    if (auto* arrow = calendar.findChild<QToolButton*>(QLatin1String(button)))
        arrow->setIcon(QIcon(QLatin1String(picture)));
}

} // namespace

void setUpCalendar(QCalendarWidget& calendar) {
    calendar.setLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    calendar.setFirstDayOfWeek(Qt::Sunday);
    calendar.setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    calendar.setDateRange({firstPickedYear, 1, 1}, {lastPickedYear, 12, 31});
    QTextCharFormat header = lettersIn(look::gold());
    header.setBackground(look::panel());
    calendar.setHeaderTextFormat(header);
    for (const auto day : {Qt::Saturday, Qt::Sunday}) calendar.setWeekdayTextFormat(day, lettersIn(look::gold()));
    setArrow(calendar, "qt_calendar_prevmonth", ":/look/pictures/arrow_left-24.png");
    setArrow(calendar, "qt_calendar_nextmonth", ":/look/pictures/arrow_right-24.png");
}

} // namespace velmoriax::widgets
