// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/date_value.h"
#include "platform/files.h"
#include "shell/options_store.h"

#include <string>
#include <string_view>

namespace velmoriax::biorhythm {

/// The second person, whom the chart draws on demand and the compatibility compares. Until one is loaded the birth is
/// the zero day of the date scale: the chart then draws that.
struct SecondProfile {
    std::string profileSecondName;
    bool drawSecondFlag = false;
    base::CivilDate secondDate{1899, 12, 30};
    base::CivilTime secondTime;
    float secondLived = 0; ///< age in days, counted like the main profile's
};

/// Reads whether the chart draws the second profile: "1" alone means yes.
void readDrawSecond(shell::OptionsStore& options, SecondProfile& second);

/// What the view reads at its load: name and flag and, when the second profile is drawn, its birth.
void readSecondProfile(const platform::Files& files, shell::OptionsStore& options, SecondProfile& second);

/// Takes the birth of the person of that name. False, with the birth loaded last left standing, when there is none that
/// can be read.
bool loadSecondProfile(const platform::Files& files, std::string_view name, SecondProfile& second);

/// Stores the chosen name as the second profile's.
void storeSecondName(shell::OptionsStore& options, SecondProfile& second, const std::string& name);

/// Stores whether the chart draws the second profile.
void storeDrawSecond(shell::OptionsStore& options, SecondProfile& second, bool draw);

/// Fills `secondLived` for the date of reading at the clock's hour and minute; the main profile's record is untouched.
void computeSecondLived(SecondProfile& second, base::CivilDate reading, base::CivilTime clock);

} // namespace velmoriax::biorhythm
