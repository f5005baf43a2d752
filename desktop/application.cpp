// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/application.h"

#include <utility>

namespace velmoriax::desktop {

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const base::RunTimeError& error) {
        // Timers still run while the fatal box is open: their errors no longer matter.
        if (!std::exchange(stopping_, true)) fatalStop_.stop(error);
        return false;
    }
}

} // namespace velmoriax::desktop
