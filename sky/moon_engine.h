// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/pending_events.h"
#include "sky/moon_phase_series.h"

#include <string>
#include <string_view>

namespace velmoriax::sky {

/// True for the date values that have phase names: all of the calendar but its two ends and the ten days
/// that the calendar of the reform of 1582 left out.
bool isMoonDateValid(base::DateValue date);

/// The Moon of a moment. Every date value is universal time, and so are the results. Nothing is kept between calls:
/// each search processes pending events once a round, and their handlers may call the engine.
class MoonEngine {
public:
    explicit MoonEngine(platform::PendingEvents& events) : events_(events) {}

    /// The lunation whose new moon is the last one at or before the moment.
    std::int32_t lunationOfDate(base::DateValue date) const;

    /// Days since the lunation's new moon, 0 to about 29.9. It can lie some millionths below zero, since the search
    /// looks half a second past the moment.
    double moonAgeDays(base::DateValue date) const;

    /// The age in degrees of a mean lunation, not folded: 0 to about 363.6.
    float moonPhaseAngle(base::DateValue date) const;

    /// "Waxing Crescent", "Waxing Gibbous", "Waning Gibbous" or "Wanning Crescent", or the empty text for a date that
    /// `isMoonDateValid` refuses.
    std::string_view moonPhaseName(base::DateValue date) const;

    // The first such phase strictly after the date.
    base::DateValue nextNewMoon(base::DateValue date) const { return next(date, MoonPhase::newMoon); }
    base::DateValue nextFirstQuarter(base::DateValue date) const { return next(date, MoonPhase::firstQuarter); }
    base::DateValue nextFullMoon(base::DateValue date) const { return next(date, MoonPhase::fullMoon); }
    base::DateValue nextLastQuarter(base::DateValue date) const { return next(date, MoonPhase::lastQuarter); }

    /// The new moon of the date's own lunation, even when it is the date itself.
    base::DateValue previousNewMoon(base::DateValue date) const;

    // The last such phase strictly before the date.
    base::DateValue previousFirstQuarter(base::DateValue date) const { return previous(date, MoonPhase::firstQuarter); }
    base::DateValue previousFullMoon(base::DateValue date) const { return previous(date, MoonPhase::fullMoon); }
    base::DateValue previousLastQuarter(base::DateValue date) const { return previous(date, MoonPhase::lastQuarter); }

private:
    /// The phase of the date's own lunation, moved by whole lunations.
    base::DateValue phaseOfLunation(base::DateValue date, MoonPhase phase, std::int32_t shift = 0) const;
    base::DateValue next(base::DateValue date, MoonPhase phase) const;
    base::DateValue previous(base::DateValue date, MoonPhase phase) const;

    platform::PendingEvents& events_;
};

} // namespace velmoriax::sky
