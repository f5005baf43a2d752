// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/windows/process.h"
#include "shell/windows/second_timer.h"

#include <QObject>
#include <QTimer>

namespace velmoriax::shell {

/// The hub: never shown, alive from the start of the process to its end. It chooses the first module and carries what
/// survives all changes of module: clock and uptime, the beat of the alerts, the lines of the tray tip.
class FrmTimer : public QObject, public TipSource {
    Q_OBJECT

public:
    /// Becomes the process's source of tip lines.
    explicit FrmTimer(Process& process);

    /// Everything that the start does.
    void load();

    TipLines tipLines() override;

private:
    void tickSecond();
    void tickHalfMinute();
    void runStartupAlert();
    void runAlerts();

    ProcessRecord& record() { return process_.record; }
    DesktopServices& desktop() { return process_.desktop; }

    Process& process_;
    SecondTimer timeUp_;
    QTimer timerBio_;
};

} // namespace velmoriax::shell
