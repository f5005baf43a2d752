// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/date_value.h"
#include "platform/files.h"
#include "shell/options_store.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace velmoriax::biorhythm {

/// The second person, whom the chart can draw and the compatibility compares. Until one is loaded the birth is the
/// first day of the date value, December 30, 1899, and the chart draws that.
struct SecondProfile {
    std::string profileSecondName;
    bool drawSecondFlag = false;
    base::CivilDate secondDate{1899, 12, 30};
    base::CivilTime secondTime;

    // The age, in the same steps as the main profile's in `BioState`. Only `secondLived` is read.
    std::int32_t secondWholeDays = 0;
    std::int16_t secondMinutesLeft = 0;
    float secondLivedAtMidnight = 0;
    float secondLived = 0; ///< age in days
};

/// Reads whether the chart draws the second profile. Only "1" means yes.
void readDrawSecond(shell::OptionsStore& options, SecondProfile& second);

/// Reads the name and whether the profile is drawn and, when it is, its birth: for the load of the view.
void readSecondProfile(const platform::Files& files, shell::OptionsStore& options, SecondProfile& second);

/// Loads the birth of the person of that name. False when no birth of that name can be read; the one that was loaded
/// last is kept then.
bool loadSecondProfile(const platform::Files& files, std::string_view name, SecondProfile& second);

/// Stores the chosen name as the second profile's.
void storeSecondName(shell::OptionsStore& options, SecondProfile& second, const std::string& name);

/// Stores whether the chart draws the second profile.
void storeDrawSecond(shell::OptionsStore& options, SecondProfile& second, bool draw);

/// Computes the age on the date of reading at the clock's hour and minute. `BioState` is not changed.
void computeSecondLived(SecondProfile& second, base::CivilDate reading, base::CivilTime clock);

} // namespace velmoriax::biorhythm
