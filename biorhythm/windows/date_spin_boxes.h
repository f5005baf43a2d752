// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/date_value.h"

#include <functional>

namespace velmoriax::widgets {
class SpinBox;
}

namespace velmoriax::biorhythm {

/// Three spin boxes that hold one date. The day is kept within the month's length before anyone hears of a change.
class DateSpinBoxes {
public:
    DateSpinBoxes(widgets::SpinBox& day, widgets::SpinBox& month, widgets::SpinBox& year);
    DateSpinBoxes(const DateSpinBoxes&) = delete;
    DateSpinBoxes& operator=(const DateSpinBoxes&) = delete;

    base::CivilDate date() const;

    /// Puts a whole date on the spin boxes and tells nobody.
    void show(base::CivilDate date);

    /// Runs when a spin box was moved, with a date that is within the month.
    std::function<void(base::CivilDate)> changed;

private:
    void stepped();

    widgets::SpinBox& day_;
    widgets::SpinBox& month_;
    widgets::SpinBox& year_;
};

} // namespace velmoriax::biorhythm
