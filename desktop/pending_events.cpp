// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/pending_events.h"

#include <QCoreApplication>
#include <QThread>

namespace velmoriax::desktop {

void QtPendingEvents::processEvents() {
    ++depth_;
    QCoreApplication::processEvents();
    --depth_;
}

bool QtPendingEvents::isProcessing() const {
    return depth_ > 0 || QThread::currentThread()->loopLevel() > 1;
}

} // namespace velmoriax::desktop
