// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/tray_tip.h"

#include "base/date_text.h"

namespace velmoriax::shell {

namespace {

constexpr std::string_view lineBreak = "\r\n";

} // namespace

bool tipKnowsBirthDate(base::CivilDate birth) {
    return birth.day != 1 && birth.month != 1 && birth.year != 1900;
}

std::string tipDateLine(base::CivilDate today) {
    return base::shortDateText(today) + " (" + std::string(base::weekdayRuler(base::weekdayOf(today))) + ")";
}

std::string joinedTipLines(const TipLines& lines) {
    std::string text = lines.tipCard;
    for (const std::string* line : {&lines.tipSign, &lines.bioTipText, &lines.tipMoon})
        text.append(lineBreak).append(*line);
    return text;
}

std::string balloonText(base::CivilDate birth, base::CivilDate today, TipSource& source) {
    if (!tipKnowsBirthDate(birth)) return std::string(unsetBalloonText);
    const TipLines lines = source.tipLines();
    return tipDateLine(today).append(lineBreak) + joinedTipLines(lines);
}

PersonalTip personalTip(base::CivilDate birth, base::CivilDate today, TipSource& source) {
    if (!tipKnowsBirthDate(birth)) return {{}, std::string(unsetPersonalText)};
    return {tipDateLine(today), joinedTipLines(source.tipLines())};
}

} // namespace velmoriax::shell
