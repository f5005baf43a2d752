// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/bio_state.h"

#include "base/rounding.h"

#include <array>
#include <cstdio>

namespace velmoriax::biorhythm {

using base::toInt16;

bool birthDateIsSet(const BioState& state) {
    return birthOf(state).date != base::CivilDate{1900, 1, 1};
}

base::CivilMoment birthOf(const BioState& state) {
    return {{state.birthYear, state.birthMonth, state.birthDay}, {state.birthHour, state.birthMinute, 0}};
}

base::CivilDate finalDateOf(const BioState& state) {
    return {state.finalYear, state.finalMonth, state.finalDay};
}

void setBirthDate(BioState& state, base::CivilDate date) {
    state.birthDay = toInt16(date.day);
    state.birthMonth = toInt16(date.month);
    state.birthYear = toInt16(date.year);
}

void setBirthTime(BioState& state, base::CivilTime time) {
    state.birthHour = toInt16(time.hour);
    state.birthMinute = toInt16(time.minute);
}

void setFinalDate(BioState& state, base::CivilDate date) {
    state.finalDay = toInt16(date.day);
    state.finalMonth = toInt16(date.month);
    state.finalYear = toInt16(date.year);
    state.finalDateText = dayMonthYearText(date);
}

std::string dayMonthYearText(base::CivilDate date) {
    std::array<char, 40> text{};
    std::snprintf(text.data(), text.size(), "%d/%d/%d", date.day, date.month, date.year);
    return text.data();
}

std::string hourMinuteText(base::CivilTime time) {
    return std::to_string(time.hour) + (time.minute < 10 ? ":0" : ":") + std::to_string(time.minute);
}

} // namespace velmoriax::biorhythm
