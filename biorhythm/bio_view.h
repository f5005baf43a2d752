// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "biorhythm/bio_state.h"
#include "biorhythm/cycle_engine.h"
#include "platform/files.h"
#include "shell/options_store.h"

#include <array>
#include <string>
#include <string_view>

/// What the Biorhythm view holds on its spin boxes and what it shows of them.
namespace velmoriax::biorhythm {

/// The view's own state; the dates are those of its spin boxes and its date picker.
struct BioViewState {
    bool manualDate = false;       ///< false: each calculation first returns to today
    base::CivilMoment birth;       ///< birth date and time of the spin boxes
    base::CivilDate reading;       ///< date of reading
    base::CivilDate finalDate;     ///< target date of the remaining days, what `finalDateText` says
    std::int16_t bioTickCount = 0; ///< half-minutes since the view last returned to today
};

/// A value of one cycle as the view shows it.
struct CycleShown {
    std::string caption; ///< "(44.72 %)"
    base::Colour colour; ///< of the caption
    float bar;           ///< height of the bar, -1 to 1
    shell::Trend trend;  ///< which of the two small pictures stands; level leaves them as they are
};

/// Everything that a calculation puts on the view, the chart apart.
struct BioShown {
    std::string livedDays;      ///< age in days, two decimals
    std::int32_t remainingDays; ///< from the date of reading to the target, negative behind it
    std::array<CycleShown, cycleCount> cycles;
    std::string average; ///< average and rating
    base::Colour averageColour;
    std::string time; ///< "Time: " and the clock's time
};

/// Reads the three files into the record and the view's spin boxes, the reading on today.
void loadBioView(const platform::Files& files, BioState& state, BioViewState& view, base::CivilDate today);

/// The one calculation of the view: returns the reading to today unless `manualDate` (which is up when that moved it),
/// computes into the record (the birth of `view`, which the record takes over only when it is saved) and gives what is
/// shown.
BioShown calcBio(BioState& state, BioViewState& view, base::DateValue now);

/// A half-minute's tick; true each half hour, when the view is to return to today and calculate.
bool halfHourIsOver(BioViewState& view);

/// A choice in the list of profiles: takes the person's birth on the spin boxes, stores the name as the main profile
/// and saves. False, with nothing changed, when no birth of that name can be read. Throws what saving throws.
bool pickProfile(platform::Files& files, shell::OptionsStore& options, BioState& state, BioViewState& view,
                 std::string_view name);

/// The caption of the time of birth: "Time: 7:05".
std::string birthTimeCaption(base::CivilTime time);

} // namespace velmoriax::biorhythm
