// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/pending_events.h"

namespace velmoriax::desktop {

/// The events of the toolkit's event loop.
class QtPendingEvents : public platform::PendingEvents {
public:
    void processEvents() override;
    bool isProcessing() const override;

private:
    int depth_ = 0;
};

} // namespace velmoriax::desktop
