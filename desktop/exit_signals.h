// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace velmoriax::desktop {

/// SIGTERM, SIGINT and SIGHUP, reported from the event loop, each time that one arrives.
class ExitSignals {
public:
    explicit ExitSignals(std::function<void()> onSignal);

private:
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace velmoriax::desktop
