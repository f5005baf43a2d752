// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/tray_tip.h"

#include "base/date_text.h"

namespace velmoriax::shell {

namespace {

constexpr std::string_view lineBreak = "\r\n";

using Line = std::string (TipLineSource::*)(base::DateValue);

std::string joinedLines(TipLineSources sources, base::DateValue now, Line line) {
    std::string text;
    for (TipLineSource* source : sources) {
        if (!text.empty()) text += lineBreak;
        text += (source->*line)(now);
    }
    return text;
}

std::string wholeText(base::CivilDate birth, base::DateValue now, TipLineSources sources, Line line) {
    if (!tipKnowsBirthDate(birth)) return std::string(unsetBalloonText);
    const std::string lines = joinedLines(sources, now, line);
    return tipDateLine(base::civilDateOf(now)).append(lineBreak) + lines;
}

} // namespace

bool tipKnowsBirthDate(base::CivilDate birth) {
    return birth.day != 1 && birth.month != 1 && birth.year != 1900;
}

std::string tipDateLine(base::CivilDate today) {
    return base::shortDateText(today) + " (" + std::string(base::weekdayRuler(base::weekdayOf(today))) + ")";
}

std::string balloonText(base::CivilDate birth, base::DateValue now, TipLineSources sources) {
    return wholeText(birth, now, sources, &TipLineSource::tipLine);
}

std::string panelText(base::CivilDate birth, base::DateValue now, TipLineSources sources) {
    return wholeText(birth, now, sources, &TipLineSource::quietTipLine);
}

PersonalTip personalTip(base::CivilDate birth, base::DateValue now, TipLineSources sources) {
    if (!tipKnowsBirthDate(birth)) return {{}, std::string(unsetPersonalText)};
    return {tipDateLine(base::civilDateOf(now)), joinedLines(sources, now, &TipLineSource::tipLine)};
}

} // namespace velmoriax::shell
