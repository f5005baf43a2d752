// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/date_value.h"
#include "shell/tip_line_source.h"

#include <span>
#include <string>
#include <string_view>

/// The texts of the tray tip. Lines are parted by carriage return and line feed, with none at the end.
namespace velmoriax::shell {

/// The program's name as the tray, the tip and the boxes show it.
inline constexpr std::string_view programName = "Velmoriax by ostrabe";

/// What is shown instead of the lines while the birth date is not set. Both spellings are the program's own.
inline constexpr std::string_view unsetBalloonText =
    "ToolTps dinámicos cuando se actualice la fecha de nacimiento para los biorritmos!";
inline constexpr std::string_view unsetPersonalText =
    "Dinamic ToolTps \r\nwhen the date of birth \r\nbe updated for the biorhythms!";

/// False when the day is 1 or the month is 1 or the year is 1900: any one of the three counts as the mark of no birth
/// date, so that people born in a January or on a first get the fixed texts too. The tip has always been so.
bool tipKnowsBirthDate(base::CivilDate birth);

/// The short date with its planet, such as "11/15/2026 (The Sun)".
std::string tipDateLine(base::CivilDate today);

/// Who is asked for the lines of the tip, in their order.
using TipLineSources = std::span<TipLineSource* const>;

/// The balloon for the local moment `now`: date line and one line a source, or the fixed text. The sources are asked
/// only for a birth date that is set.
std::string balloonText(base::CivilDate birth, base::DateValue now, TipLineSources sources);

/// The same text for a panel that shows it by itself.
std::string panelText(base::CivilDate birth, base::DateValue now, TipLineSources sources);

/// The personal tooltip. An empty date leaves the label as it was designed.
struct PersonalTip {
    std::string date;
    std::string lines;
};
PersonalTip personalTip(base::CivilDate birth, base::DateValue now, TipLineSources sources);

} // namespace velmoriax::shell
