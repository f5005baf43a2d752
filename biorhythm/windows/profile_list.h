// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace velmoriax::biorhythm {

/// The profile list, as the editor beside it sees it.
class ProfileList {
public:
    static constexpr std::string_view windowName = "FrmProfiles";

    virtual ~ProfileList() = default;

    /// The chosen line as the list shows it, empty when none is chosen.
    virtual std::string selectedRecord() const = 0;

    /// Reads the list anew.
    virtual void ListaPerfiles() = 0;
};

} // namespace velmoriax::biorhythm
