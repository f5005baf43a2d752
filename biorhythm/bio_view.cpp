// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/bio_view.h"

#include "base/date_text.h"
#include "base/number_text.h"
#include "biorhythm/profile_files.h"
#include "biorhythm/profile_store.h"
#include "biorhythm/view_dates.h"

namespace velmoriax::biorhythm {

namespace {

constexpr base::Colour valueGreen{150, 250, 100};
constexpr std::int16_t halfMinutesOfHalfHour = 60;

CycleShown shownCycle(float now, float next) {
    return {"(" + percentText(now) + " %)", now >= 0 ? valueGreen : pureRed, now, trendOf(now, next)};
}

/// Sets a birth from a file. A birth date that differs from the one shown counts as changed.
void setBirth(BioViewState& view, const base::CivilMoment& birth) {
    const base::CivilDate date = withinView(birth.date);
    if (date != view.birth.date) takeBirthDate(view, date);
    view.birth.time = birth.time;
}

/// A date of reading that changes counts as set by hand, also when it is changed from here: after midnight it is
/// yesterday's until the next half-hour, the button or a change of the birth returns it again.
void returnToToday(BioViewState& view, base::CivilDate today) {
    const base::CivilDate reading = withinView(today);
    view.manualDate = reading != view.reading;
    view.reading = reading;
}

} // namespace

void loadBioView(const platform::Files& files, BioState& state, BioViewState& view, base::CivilDate today) {
    loadFinalDate(files, state, today);
    loadBirth(files, state);
    loadBirthTime(files, state);
    view.finalDate = finalDateOf(state);
    setBirth(view, birthOf(state));
    view.reading = withinView(today);
    view.manualDate = true;
}

void takeBirthDate(BioViewState& view, base::CivilDate date) {
    view.manualDate = false;
    view.birth.date = date;
    limitDaysBirth(view);
}

void takeReadingDate(BioViewState& view, base::CivilDate date) {
    view.manualDate = true;
    view.reading = date;
    limitDaysBio(view);
}

void limitDaysBirth(BioViewState& view) {
    view.birth.date = limitDays(view.birth.date);
}

void limitDaysBio(BioViewState& view) {
    view.reading = limitDays(view.reading);
}

BioShown calcBio(BioState& state, BioViewState& view, base::DateValue now) {
    const base::CivilMoment present = base::civilMomentOf(now);
    if (!view.manualDate) returnToToday(view, present.date);
    computeLived(state, view.birth, view.reading, present.time);
    computeCycles(state);
    computeAverage(state);
    BioShown shown{};
    shown.livedDays = base::formatFixed(state.lived, 2);
    shown.remainingDays = base::daysBetween(view.reading, view.finalDate);
    for (std::size_t i = 0; i < cycleCount; ++i) shown.cycles[i] = shownCycle(state.cycle[i], state.cycleNext[i]);
    shown.average = averageLine(state);
    shown.averageColour = base::leadingNumber(state.averageText) >= 0 ? pureGreen : pureRed;
    shown.time = "Time: " + base::timeText(present.time);
    return shown;
}

float livedIn(const BioViewState& view, base::CivilTime clock) {
    return livedOf(view.birth, view.reading, clock).lived;
}

bool halfHourIsOver(BioViewState& view) {
    if (++view.bioTickCount < halfMinutesOfHalfHour) return false;
    view.bioTickCount = 0;
    view.manualDate = false;
    return true;
}

bool pickProfile(const platform::Files& files, shell::OptionsStore& options, BioViewState& view,
                 std::string_view name) {
    const auto birth = findProfile(files, name);
    if (!birth) return false;
    setBirth(view, *birth);
    options.setOption(shell::key::perfilBio, name);
    return true;
}

std::string birthTimeCaption(base::CivilTime time) {
    return "Time: " + hourMinuteText(time);
}

} // namespace velmoriax::biorhythm
