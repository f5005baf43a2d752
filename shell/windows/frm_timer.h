// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/windows/process.h"

#include <QObject>

namespace velmoriax::shell {

/// The hub: never shown, alive from the start of the process to its end. It chooses the first module.
class FrmTimer : public QObject {
    Q_OBJECT

public:
    explicit FrmTimer(Process& process);

    /// Everything that the start does.
    void load();

private:
    Process& process_;
};

} // namespace velmoriax::shell
