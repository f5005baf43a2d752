// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/fatal_stop.h"

#include <QApplication>

namespace velmoriax::desktop {

/// The application object. What the program does not survive ends here when an event leads to it; the start, which is
/// no event, is caught by `main`.
class Application : public QApplication {
public:
    Application(int& argc, char** argv, platform::FatalStop& stop) : QApplication(argc, argv), fatalStop_(stop) {}

    bool notify(QObject* receiver, QEvent* event) override;

private:
    platform::FatalStop& fatalStop_;
    bool stopping_ = false;
};

} // namespace velmoriax::desktop
