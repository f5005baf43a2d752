// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/bio_gauge.h"

#include "base/date_text.h"
#include "biorhythm/cycle_engine.h"

namespace velmoriax::biorhythm {

namespace {

/// The month is first here, though the files and the view have the day first.
std::string infoText(const base::CivilMoment& birth) {
    return "Biorhythms: b." + base::shortDateText(birth.date) + " " + hourMinuteText(birth.time) + " (average)";
}

} // namespace

shell::AverageGauge drawBioMedia(BioState& state, base::DateValue now) {
    const base::CivilMoment present = base::civilMomentOf(now);
    const base::CivilMoment birth = birthOf(state);
    computeLived(state, birth, present.date, present.time);
    computeCycles(state);
    computeAverage(state);
    const auto value = static_cast<float>(meanOf(state.cycle));
    const auto next = static_cast<float>(meanOf(state.cycleNext));
    return {averageLine(state), infoText(birth), value, value >= 0 ? pureGreen : pureRed, trendOf(value, next)};
}

} // namespace velmoriax::biorhythm
