// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/fatal_stop.h"

#include <QApplication>
#include <QSocketNotifier>

#include <functional>
#include <memory>

class QLockFile;

namespace velmoriax::desktop {

/// The application object: the one place where what the program does not survive is caught.
class Application : public QApplication {
public:
    Application(int& argc, char** argv, platform::FatalStop& stop) : QApplication(argc, argv), fatalStop_(stop) {}

    bool notify(QObject* receiver, QEvent* event) override;

private:
    platform::FatalStop& fatalStop_;
    bool stopping_ = false;
};

/// A critical box with the platform's words, the icon taken away, exit status 1.
class FatalBox : public platform::FatalStop {
public:
    /// Runs behind the box and takes the tray icon away.
    std::function<void()> removeIcon;

    [[noreturn]] void stop(const base::RunTimeError& error) override;
};

/// SIGTERM, SIGINT and SIGHUP, brought into the event loop.
class ExitSignals {
public:
    explicit ExitSignals(std::function<void()> onSignal);

private:
    std::unique_ptr<QSocketNotifier> notifier_;
};

/// One running program an application directory, by a lock file that a dead process's lock does not block.
class SingleInstance {
public:
    explicit SingleInstance(const std::string& directory);
    ~SingleInstance();

    /// False when another instance runs. A directory that cannot be written to holds no lock, and the program runs.
    bool isFirst() const { return first_; }

private:
    std::unique_ptr<QLockFile> lock_;
    bool first_ = true;
};

} // namespace velmoriax::desktop
