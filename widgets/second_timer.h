// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>

namespace velmoriax::widgets {

/// Ticks once in each second of the clock, soon after it has begun, so that no second is left out and none counted
/// twice. Each tick sets the next one by the clock as it is then: after a sleep of the machine, or a clock that was
/// set, it goes on from there with one tick and nothing to catch up.
class SecondTimer : public QTimer {
    Q_OBJECT

public:
    /// `afterMs` is how long after the beginning of the second it ticks: the timer that fills a text ticks ahead of the
    /// timer that shows it.
    SecondTimer(int afterMs, QObject* parent);

    /// Starts it, or starts it anew.
    void begin();

private:
    int afterMs_;
};

} // namespace velmoriax::widgets
