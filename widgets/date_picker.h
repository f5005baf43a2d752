// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QDateEdit;

namespace velmoriax::widgets {

/// Sets a date picker up for any date that a file may hold, the years 100 to 9999, with months and weekdays in English.
void setUpDatePicker(QDateEdit& picker);

} // namespace velmoriax::widgets
