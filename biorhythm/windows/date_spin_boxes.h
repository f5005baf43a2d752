// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/date_value.h"

#include <functional>

namespace velmoriax::widgets {
class SpinBox;
}

namespace velmoriax::biorhythm {

/// Three spin boxes that hold one date.
class DateSpinBoxes {
public:
    DateSpinBoxes(widgets::SpinBox& day, widgets::SpinBox& month, widgets::SpinBox& year);
    DateSpinBoxes(const DateSpinBoxes&) = delete;
    DateSpinBoxes& operator=(const DateSpinBoxes&) = delete;

    /// Shows a date; `changed` is not called.
    void show(base::CivilDate date);

    /// Called with the three values after one of them changed. The day may be beyond the end of a month that was chosen
    /// after it: whoever takes the date shows the one that it became.
    std::function<void(base::CivilDate)> changed;

private:
    void callChanged();

    widgets::SpinBox& day_;
    widgets::SpinBox& month_;
    widgets::SpinBox& year_;
};

} // namespace velmoriax::biorhythm
