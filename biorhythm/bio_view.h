// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "biorhythm/bio_state.h"
#include "biorhythm/cycle_engine.h"
#include "platform/files.h"
#include "shell/options_store.h"

#include <array>
#include <string>
#include <string_view>

/// What is set in the Biorhythm view, and what the view shows for it.
namespace velmoriax::biorhythm {

/// The dates that are set in the view, in its spin boxes and its date picker, and how long the reading is kept.
struct BioViewState {
    bool manualDate = false;       ///< false: each calculation first returns the reading to today
    base::CivilMoment birth;       ///< birth date and time of birth
    base::CivilDate reading;       ///< date of reading
    base::CivilDate finalDate;     ///< target date of the remaining days
    std::int16_t bioTickCount = 0; ///< half-minutes since the view last returned to today
};

/// A value of one cycle as the view shows it.
struct CycleShown {
    std::string caption; ///< "(44.72 %)"
    base::Colour colour; ///< of the caption
    float bar;           ///< height of the bar, -1 to 1
    shell::Trend trend;  ///< which of the two small pictures is visible; level leaves them as they are
};

/// Everything that a calculation shows in the view, except for the chart.
struct BioShown {
    std::string livedDays;      ///< age in days, two decimals
    std::int32_t remainingDays; ///< from the date of reading to the target, negative when the target is earlier
    std::array<CycleShown, cycleCount> cycles;
    std::string average; ///< average and rating
    base::Colour averageColour;
    std::string time; ///< "Time: " and the clock's time
};

/// Reads the three files into `state` and into the view, and sets the date of reading to today.
void loadBioView(const platform::Files& files, BioState& state, BioViewState& view, base::CivilDate today);

/// Takes a birth date from its spin boxes; the next calculation returns the reading to today.
void takeBirthDate(BioViewState& view, base::CivilDate date);

/// Takes a date of reading that the user chose; it is kept until the next half-hour or a change of the birth date.
void takeReadingDate(BioViewState& view, base::CivilDate date);

/// Bring the day of the birth date, or of the date of reading, down to the length of its month.
void limitDaysBirth(BioViewState& view);
void limitDaysBio(BioViewState& view);

/// The one calculation of the view. Returns the date of reading to today unless `manualDate` is set, which it sets when
/// that changed the date, and computes into `state`. The birth of the view enters the computation, but `state` takes it
/// over only when it is saved.
BioShown calcBio(BioState& state, BioViewState& view, base::DateValue now);

/// The age in days on the view's date of reading at the clock's hour and minute. Computed from the view alone, since
/// `BioState` holds whatever was computed last.
float livedIn(const BioViewState& view, base::CivilTime clock);

/// Counts a half-minute. True each half hour, when the view is to return to today and to calculate.
bool halfHourIsOver(BioViewState& view);

/// A choice in the list of profiles: sets the person's birth in the view and stores the name as the main profile. False
/// when no birth of that name can be read; nothing is changed then.
bool pickProfile(const platform::Files& files, shell::OptionsStore& options, BioViewState& view, std::string_view name);

/// The caption of the time of birth: "Time: 7:05".
std::string birthTimeCaption(base::CivilTime time);

} // namespace velmoriax::biorhythm
