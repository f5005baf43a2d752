// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/exit_signals.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace velmoriax::desktop {

namespace {

int signalWriteEnd = -1;

void onExitSignal(int) {
    const int savedErrno = errno;
    const char byte = 1;
    [[maybe_unused]] const auto written = ::write(signalWriteEnd, &byte, 1);
    errno = savedErrno;
}

} // namespace

ExitSignals::ExitSignals(std::function<void()> onSignal) {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
    signalWriteEnd = ends[1];
    notifier_ = std::make_unique<QSocketNotifier>(ends[0], QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, [end = ends[0], onSignal = std::move(onSignal)] {
        std::array<char, 16> bytes{};
        while (::read(end, bytes.data(), bytes.size()) > 0) {
        }
        onSignal();
    });
    struct sigaction action {};
    action.sa_handler = onExitSignal;
    action.sa_flags = SA_RESTART;
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) ::sigaction(number, &action, nullptr);
}

} // namespace velmoriax::desktop
