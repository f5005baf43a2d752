// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QCalendarWidget;

namespace velmoriax::shell {

/// Gives a calendar the look of the house, English names, weeks from Sunday and the years 100 to 9999.
void makeNightCalendar(QCalendarWidget& calendar);

} // namespace velmoriax::shell
