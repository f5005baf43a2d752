// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/files.h"
#include "shell/options_store.h"

#include <string>

namespace velmoriax::tarot {

/// Where the pictures of the cards are found.
struct Deck {
    std::string applicationDirectory;
    std::string tipocartas; ///< the deck in use, as the option names it
};

/// The deck that the options name now.
inline Deck deckInUse(const platform::Files& files, const shell::OptionsStore& options) {
    return {files.applicationDirectory(), options.holders.tipocartas};
}

} // namespace velmoriax::tarot
