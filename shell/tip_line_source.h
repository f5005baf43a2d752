// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/date_value.h"

#include <string>

namespace velmoriax::shell {

/// Who works out a line of the tray tip: when a tip comes up, and at no other time.
class TipLineSource {
public:
    virtual ~TipLineSource() = default;

    /// The line for the local moment `now`, without a line end. May process pending events.
    virtual std::string tipLine(base::DateValue now) = 0;

    /// The same line for a panel that shows the text by itself and asks each minute: nothing that windows read changes,
    /// and what the program would not survive leaves the line before.
    virtual std::string quietTipLine(base::DateValue now) { return tipLine(now); }
};

} // namespace velmoriax::shell
