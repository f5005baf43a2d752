// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/windows/window_context.h"
#include "widgets/second_timer.h"

#include <QObject>
#include <QTimer>

namespace velmoriax::shell {

/// The hub: never shown, alive from the start of the process to its end. It chooses the first module and carries what
/// survives all changes of module: clock and uptime and the schedule of the alerts.
class FrmTimer : public QObject {
    Q_OBJECT

public:
    explicit FrmTimer(WindowContext& context);

    /// Everything that the start does.
    void load();

private:
    void tickSecond();
    void tickHalfMinute();

    WindowContext& context_;
    widgets::SecondTimer timeUp_;
    QTimer timerBio_;
};

} // namespace velmoriax::shell
