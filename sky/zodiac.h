// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/date_value.h"
#include "platform/files.h"
#include "platform/time_zone.h"
#include "sky/sky_state.h"

#include <cstdint>
#include <string>
#include <string_view>

/// Which sign rules a moment, whether that day is a change of sign, and which season begins. One search serves the Card
/// of the Day, Another Day and the tray tip; each keeps its own answer in the record. Errors are passed over: without
/// tables the fixed calendar decides, and the change alert is then never shown.
namespace velmoriax::sky {

/// The services that a search needs.
struct SignSources {
    const platform::Files& files;
    const platform::TimeZone& zone;
};

/// The Card of the Day: the sign of the present moment, given as local time. Its day is today: it decides about the
/// change of sign and the season. An empty `hemisferio` counts as south. Returns `cardOfDaySign` of the record.
const SignReading& signoZod(const SignSources& sources, base::DateValue now, std::string_view hemisferio,
                            SkyState& state);

/// Another Day: the sign of a day at its noon, taken as universal time. The noon's day decides about the change and the
/// season. An empty `hemisferio` counts as north, other than in the Card of the Day. Returns `anotherDaySign`.
const SignReading& signoZodCalendar(const platform::Files& files, base::CivilDate date, std::string_view hemisferio,
                                    SkyState& state);

/// Fills picture, label and tip from the fixed calendar, and sets `currentSignIndex` and `signImagePath` of the record.
/// The time of day of the date plays no part.
void signFromFixedTable(const platform::Files& files, base::DateValue date, SignReading& form, SkyState& state);

/// Hides the alert and empties change and season text, as Another Day does when a date is picked.
void clearChange(SignReading& form);

/// What a click on `ImageAlert` shows in the Card of the Day and in Another Day, two lines separated by a line feed.
/// The moment of the change is in local time, by the zone as it is now.
std::string changeOfSignMessage(const SignReading& form, base::CivilDate today, const platform::TimeZone& zone);
std::string changeOfSignMessageCalendar(const SignReading& form, const platform::TimeZone& zone);

/// The path of the text about a sign, Aries 0 to Pisces 11, and the text itself. Throws base::RunTimeError when the
/// file cannot be read. The windows show the text of `currentSignIndex`.
std::string signDescriptionPath(const platform::Files& files, std::int16_t index);
std::string signDescription(const platform::Files& files, std::int16_t index);

/// The tray tip's own search. It leaves `currentSignIndex` alone.
namespace agent {

/// Sets `signoText` of the record for the present local moment, with " (<=>)" behind it on a day of change.
void signoZod(const SignSources& sources, base::DateValue now, SkyState& state);

/// Sets `signoText` from the fixed calendar.
void signoZodSt(base::DateValue date, SkyState& state);

/// The sign's line of the tray tip, such as "Zodiac Sign: Scorpio".
std::string tipsignzodiac(const SignSources& sources, base::DateValue now, SkyState& state);

} // namespace agent

} // namespace velmoriax::sky
