// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/options_store.h"

#include <string>
#include <string_view>

namespace velmoriax::shell {

/// What the about box says, and where its links lead.
struct AboutText {
    std::string windowTitle;
    std::string title;
    std::string version;
    std::string description;
    std::string webAddress;
    std::string mailAddress; ///< with the mail-to scheme
};

/// The texts for a program of this title and version. Paragraph and addresses come from the supplied "\velmoriax.ini",
/// section "about": the paragraph in the keys `Paragraph1`, `Paragraph2` and so on, joined by spaces, since a value
/// ends after 254 characters. An address that the file lacks comes back empty.
AboutText aboutText(const OptionsStore& options, const std::string& applicationDirectory,
                    std::string_view applicationTitle, std::string_view version);

} // namespace velmoriax::shell
