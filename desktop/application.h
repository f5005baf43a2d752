// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/fatal_stop.h"

#include <QApplication>

namespace velmoriax::desktop {

/// The application object. It catches the errors that end the program when they are thrown while an event is handled;
/// `main` catches those of the start, which is no event.
class Application : public QApplication {
public:
    Application(int& argc, char** argv, platform::FatalStop& stop) : QApplication(argc, argv), fatalStop_(stop) {}

    bool notify(QObject* receiver, QEvent* event) override;

private:
    platform::FatalStop& fatalStop_;
    bool stopping_ = false;
};

} // namespace velmoriax::desktop
