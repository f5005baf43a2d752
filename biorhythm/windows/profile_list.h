// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace velmoriax::biorhythm {

/// What the record editor needs of the list of profiles.
class ProfileList {
public:
    static constexpr std::string_view windowName = "FrmProfiles";

    virtual ~ProfileList() = default;

    /// The selected line, unchanged; empty when none is selected.
    virtual std::string selectedRecord() const = 0;

    /// Reads the file again and shows its lines.
    virtual void ListaPerfiles() = 0;
};

} // namespace velmoriax::biorhythm
