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

/// A date that differs from the one on the spin boxes is a change of them, and a change of the birth returns the
/// reading to today.
void setBirth(BioViewState& view, const base::CivilMoment& birth) {
    const base::CivilDate date = withinView(birth.date);
    if (date != view.birth.date) view.manualDate = false;
    view.birth = {date, birth.time};
}

/// Spin boxes that move count as moved by hand, whoever moved them: a date that they were returned to stays there past
/// midnight, until the next half-hour, the button or a change of the birth returns them again.
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

bool halfHourIsOver(BioViewState& view) {
    if (++view.bioTickCount < halfMinutesOfHalfHour) return false;
    view.bioTickCount = 0;
    view.manualDate = false;
    return true;
}

bool pickProfile(platform::Files& files, shell::OptionsStore& options, BioState& state, BioViewState& view,
                 std::string_view name) {
    const auto birth = findProfile(files, name);
    if (!birth) return false;
    setBirth(view, *birth);
    options.setOption(shell::key::perfilBio, name);
    saveBioState(files, state, view.birth, view.finalDate);
    return true;
}

std::string birthTimeCaption(base::CivilTime time) {
    return "Time: " + hourMinuteText(time);
}

} // namespace velmoriax::biorhythm
