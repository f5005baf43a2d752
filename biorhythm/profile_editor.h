// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/date_value.h"
#include "platform/files.h"

#include <optional>
#include <string>
#include <string_view>

/// The editing of one record: from a line of the list to the controls of the editor, and back.
namespace velmoriax::biorhythm {

struct EditedProfile {
    std::string name;
    std::optional<base::CivilDate> date; ///< nothing when the line holds no date: the user has to choose one
    base::CivilTime time;                ///< hour 0 to 23 and minute 0 to 59, whatever the line holds
};

/// Splits a line. The hour is the first two characters of the time field, or the one before a colon; the minute is what
/// follows.
EditedProfile editedProfile(std::string_view line);

/// "Submit": appends the record to the copy of the list that is without the old one, and puts the copy in the list's
/// place. The minute is written as a plain number, "7:5". When the copy cannot be put there, the record is appended to
/// the list itself: the old one may then remain, but nobody is lost. False then.
bool submitProfile(platform::Files& files, const std::string& copyPath, std::string_view name,
                   const base::CivilMoment& birth);

} // namespace velmoriax::biorhythm
