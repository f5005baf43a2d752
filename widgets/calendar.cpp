// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/calendar.h"

#include "widgets/accessible_role.h"
#include "widgets/look.h"
#include "widgets/typed_date.h"

#include <QCalendarWidget>
#include <QTextCharFormat>
#include <QToolButton>

#include <array>

namespace velmoriax::widgets {

namespace {

QTextCharFormat lettersIn(const QColor& colour) {
    QTextCharFormat format;
    format.setForeground(colour);
    return format;
}

struct Arrow {
    const char* button;
    const char* picture;
    const char* name;
};
constexpr std::array<Arrow, 2> arrows{{{"qt_calendar_prevmonth", ":/look/pictures/arrow_left-24.png", "Previous month"},
                                       {"qt_calendar_nextmonth", ":/look/pictures/arrow_right-24.png", "Next month"}}};

/// The style sheet leaves the two arrows without an icon, and the toolkit without a name.
void setUpArrows(const QCalendarWidget& calendar) {
    for (const Arrow& arrow : arrows) {
        auto* button = calendar.findChild<QToolButton*>(QLatin1String(arrow.button));
        if (!button) continue;
        button->setIcon(QIcon(QLatin1String(arrow.picture)));
        button->setAccessibleName(QLatin1String(arrow.name));
    }
}

/// For the toolkit, arrows, month and year are for the mouse alone, the days have no name, and those of a hidden
/// calendar are visible. Tab comes to the days first, where the calendar leads it.
void setUpReach(QCalendarWidget& calendar) {
    setAccessibleRole(calendar, QAccessible::Grouping);
    auto* before = calendar.findChild<QWidget*>(QStringLiteral("qt_calendar_calendarview"));
    if (!before) return;
    before->setAccessibleName(calendar.accessibleName());
    for (const char* name :
         {"qt_calendar_prevmonth", "qt_calendar_monthbutton", "qt_calendar_yearbutton", "qt_calendar_nextmonth"}) {
        auto* button = calendar.findChild<QWidget*>(QLatin1String(name));
        if (!button) continue;
        button->setFocusPolicy(Qt::StrongFocus);
        QWidget::setTabOrder(before, button);
        before = button;
    }
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
    setUpArrows(calendar);
    setUpReach(calendar);
}

} // namespace velmoriax::widgets
