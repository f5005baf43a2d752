// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace velmoriax::desktop {

/// SIGTERM, SIGINT and SIGHUP, brought into the event loop. Each one is reported, the second and later ones too.
class ExitSignals {
public:
    explicit ExitSignals(std::function<void()> onSignal);

private:
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace velmoriax::desktop
