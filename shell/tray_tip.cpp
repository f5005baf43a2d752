// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/tray_tip.h"

#include "base/date_text.h"

namespace velmoriax::shell {

namespace {

constexpr std::string_view lineBreak = "\r\n";

std::string joinedLines(TipLineSources sources, base::DateValue now) {
    std::string text;
    for (TipLineSource* source : sources) {
        if (!text.empty()) text += lineBreak;
        text += source->tipLine(now);
    }
    return text;
}

} // namespace

bool tipKnowsBirthDate(base::CivilDate birth) {
    return birth.day != 1 && birth.month != 1 && birth.year != 1900;
}

std::string tipDateLine(base::CivilDate today) {
    return base::shortDateText(today) + " (" + std::string(base::weekdayRuler(base::weekdayOf(today))) + ")";
}

std::string balloonText(base::CivilDate birth, base::DateValue now, TipLineSources sources) {
    if (!tipKnowsBirthDate(birth)) return std::string(unsetBalloonText);
    const std::string lines = joinedLines(sources, now);
    return tipDateLine(base::civilDateOf(now)).append(lineBreak) + lines;
}

PersonalTip personalTip(base::CivilDate birth, base::DateValue now, TipLineSources sources) {
    if (!tipKnowsBirthDate(birth)) return {{}, std::string(unsetPersonalText)};
    return {tipDateLine(base::civilDateOf(now)), joinedLines(sources, now)};
}

} // namespace velmoriax::shell
