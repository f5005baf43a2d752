// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/files.h"
#include "shell/options_store.h"
#include "shell/tip_line_source.h"
#include "tarot/card_catalogue.h"

#include <optional>
#include <string>

namespace velmoriax::tarot {

/// The card's line of the tray tip.
class CardTip : public shell::TipLineSource {
public:
    CardTip(const platform::Files& files, const shell::OptionsStore& options, CardState& cards) :
        files_(files), options_(options), cards_(cards) {}

    std::string tipLine(base::DateValue now) override;

    /// Works the line out, once a day at most: a deck that changes meanwhile shows from the next day on.
    void tipcartadia(base::CivilDate today);

private:
    const platform::Files& files_;
    const shell::OptionsStore& options_;
    CardState& cards_;
    std::optional<base::CivilDate> cardDate_; ///< the day that `tipCard_` was worked out for; none at start
    std::string tipCard_;
};

} // namespace velmoriax::tarot
