// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/calendar.h"

#include "widgets/accessible_role.h"
#include "widgets/look.h"
#include "widgets/typed_date.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QCalendarWidget>
#include <QStyle>
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

/// The toolkit draws the arrows without the focus that they have; the style sheet knows the property.
void drawFocus(QWidget& arrow, bool focused) {
    arrow.setProperty("focused", focused);
    arrow.style()->unpolish(&arrow);
    arrow.style()->polish(&arrow);
}

/// The style sheet leaves the two arrows without an icon, and the toolkit without a name.
void setUpArrows(const QCalendarWidget& calendar) {
    for (const Arrow& arrow : arrows) {
        auto* button = calendar.findChild<QToolButton*>(QLatin1String(arrow.button));
        if (!button) continue;
        button->setIcon(QIcon(QLatin1String(arrow.picture)));
        button->setAccessibleName(QLatin1String(arrow.name));
        QObject::connect(qApp, &QApplication::focusChanged, button,
                         [button](const QWidget* before, const QWidget* now) {
                             if (before == button || now == button) drawFocus(*button, now == button);
                         });
    }
}

/// For the toolkit, arrows, month and year are for the mouse alone, the days have no name, and those of a hidden
/// calendar are visible. Tab comes to the days first, where the calendar leads it.
void setUpReach(QCalendarWidget& calendar) {
    setAccessibleRole(calendar, QAccessible::Grouping);
    auto* before = calendar.findChild<QWidget*>(QStringLiteral("qt_calendar_calendarview"));
    if (!before) return;
    before->setAccessibleName(calendar.accessibleName());
    for (const char* name : {"qt_calendar_prevmonth", "qt_calendar_monthbutton", "qt_calendar_yearbutton",
                             "qt_calendar_yearedit", "qt_calendar_nextmonth"}) {
        auto* part = calendar.findChild<QWidget*>(QLatin1String(name));
        if (!part) continue;
        if (part->focusPolicy() == Qt::NoFocus) part->setFocusPolicy(Qt::TabFocus); // a click leaves it on the days
        QWidget::setTabOrder(before, part);
        before = part;
    }
}

/// After a new year the focus is on the days again: the toolkit leaves it on the next control, which the key that ended
/// the year would then press.
void setUpYear(QCalendarWidget& calendar) {
    auto* year = calendar.findChild<QAbstractSpinBox*>(QStringLiteral("qt_calendar_yearedit"));
    if (!year) return;
    year->setAccessibleName(QStringLiteral("Year"));
    QObject::connect(year, &QAbstractSpinBox::editingFinished, &calendar, [&calendar] {
        if (calendar.isAncestorOf(QApplication::focusWidget())) calendar.setFocus();
    });
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
    setUpYear(calendar);
}

} // namespace velmoriax::widgets
