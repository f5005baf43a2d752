// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QCalendarWidget;

namespace velmoriax::widgets {

/// Sets up a calendar with the colours of `look`, English names, weeks from Sunday and the years 100 to 9999.
void setUpCalendar(QCalendarWidget& calendar);

} // namespace velmoriax::widgets
