// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/date_value.h"
#include "platform/files.h"

#include <optional>
#include <string>
#include <string_view>

/// What the editor of one record takes from a line of the list and puts back.
namespace velmoriax::biorhythm {

struct EditedProfile {
    std::string name;
    std::optional<base::CivilDate> date; ///< nothing when the line holds no date: the user is to choose one
    base::CivilTime time;                ///< within the spin boxes' bounds, whatever stands in the line
};

/// Splits a line. The hour is the first two characters of the time field, or one before a colon; the minute is what
/// stands behind it.
EditedProfile editedProfile(std::string_view line);

/// "Submit": the copy without the old record takes the list's place, the record goes to its end. The minute is written
/// as a plain number, "7:5". When the copy cannot take the list's place, the record goes to the end of the list as it
/// stands: the old one may then stay, but no one is lost.
void submitProfile(platform::Files& files, const std::string& copyPath, std::string_view name, base::CivilDate date,
                   base::CivilTime time);

} // namespace velmoriax::biorhythm
