// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/session.h"

#include <QLockFile>
#include <QMessageBox>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace velmoriax::desktop {

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const base::RunTimeError& error) {
        // While the fatal box stands, timers go on: what they run into no longer counts.
        if (!std::exchange(stopping_, true)) fatalStop_.stop(error);
        return false;
    }
}

void FatalBox::stop(const base::RunTimeError& error) {
    QMessageBox box(QMessageBox::Critical, QApplication::applicationDisplayName(),
                    QString::fromStdString(error.message()), QMessageBox::Ok);
    box.setTextFormat(Qt::PlainText);
    box.exec();
    if (removeIcon) removeIcon();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 50);
    std::_Exit(EXIT_FAILURE);
}

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
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, [this, onSignal = std::move(onSignal)] {
        notifier_->setEnabled(false);
        onSignal();
    });
    struct sigaction action {};
    action.sa_handler = onExitSignal;
    action.sa_flags = SA_RESTART;
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) ::sigaction(number, &action, nullptr);
}

SingleInstance::SingleInstance(const std::string& directory) :
    lock_(std::make_unique<QLockFile>(QString::fromStdString(directory) + QStringLiteral("/.velmoriax.lock"))) {
    // The lock's owner is asked for by its process number: only a dead one's lock is broken, never an old one's.
    lock_->setStaleLockTime(0);
    if (!lock_->tryLock(0)) first_ = lock_->error() != QLockFile::LockFailedError;
}

SingleInstance::~SingleInstance() = default;

} // namespace velmoriax::desktop
