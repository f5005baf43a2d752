// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velmoriax::shell {

/// The four lines of the tray tip.
struct TipLines {
    std::string tipCard;
    std::string tipSign;
    std::string bioTipText;
    std::string tipMoon;
};

/// Who works out the lines: the hub, when a tip comes up and at no other time.
class TipSource {
public:
    virtual ~TipSource() = default;

    /// Runs `tipcartadia`, `tipsignzodiac`, `biotip` and `lunatip`, in this order, and gives what they left.
    virtual TipLines tipLines() = 0;
};

} // namespace velmoriax::shell
