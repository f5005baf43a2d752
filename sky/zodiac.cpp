// SPDX-License-Identifier: GPL-3.0-or-later
#include "sky/zodiac.h"

#include "base/date_text.h"
#include "base/run_time_error.h"
#include "base/windows1252.h"
#include "shell/options.h"
#include "sky/ingress_search.h"
#include "sky/time_zone_shift.h"
#include "sky/zodiac_tables.h"

#include <algorithm>
#include <optional>

namespace velmoriax::sky {

namespace {

/// What the two windows' searches differ in.
struct WindowSearch {
    base::DateValue moment; ///< universal time
    base::CivilDate day;    ///< of the fixed calendar, the change test and the season
    bool tipNamesSign;
    bool changeHoldsDate; ///< whether the change text holds the date besides the time
    bool north;
};

std::string_view entry(const std::array<std::string_view, 12>& table, std::int16_t index) {
    return table[static_cast<std::size_t>(index)];
}

/// The row of the fixed calendar for a day.
const FixedSign& fixedSignOf(base::CivilDate date) {
    const auto holds = [&](const FixedSign& sign) {
        return date.month < sign.month || (date.month == sign.month && date.day < sign.day);
    };
    return *std::ranges::find_if(fixedSigns, holds);
}

/// The year plays no part.
bool sameDayOfYear(base::CivilDate a, base::CivilDate b) {
    return a.month == b.month && a.day == b.day;
}

/// The limit of a stay that falls on a day: its start, or else its end.
std::optional<base::DateValue> limitOn(const SignStay& stay, base::CivilDate day) {
    for (const base::DateValue limit : {stay.start, stay.end})
        if (sameDayOfYear(base::civilDateOf(limit), day)) return limit;
    return std::nullopt;
}

std::string signPictureDirectory(const platform::Files& files) {
    return files.applicationDirectory() + "\\signos\\";
}

void showSign(const platform::Files& files, std::int16_t index, std::string_view tip, SignReading& form) {
    form.index = index;
    form.picturePath = signPictureDirectory(files) + std::string(entry(signFileNames, index)) + "_sm.gif";
    form.label = entry(signNames, index);
    form.tip = tip;
}

std::optional<std::string> changeTextOn(const SignStay& stay, const WindowSearch& search) {
    const auto limit = limitOn(stay, search.day);
    if (!limit) return std::nullopt;
    return search.changeHoldsDate ? base::generalText(*limit) : base::timeText(*limit);
}

/// Shows the alert with the text of the change, or hides it.
void showChange(const std::optional<std::string>& changeText, SignReading& form) {
    form.alertVisible = changeText.has_value();
    form.alertTip = changeText ? "Change of sign, click for further information." : "";
    form.changeText = changeText.value_or("");
}

void showSeason(int month, bool north, SignReading& form) {
    const auto* season = std::ranges::find(seasonBegins, month, &SeasonBegin::month);
    if (season != seasonBegins.end()) form.seasonText = north ? season->north : season->south;
}

void showStay(const platform::Files& files, const SignStay& stay, const WindowSearch& search, SignReading& form) {
    const std::string dates =
        base::monthDayText(base::civilDateOf(stay.start)) + "/" + base::monthDayText(base::civilDateOf(stay.end));
    const std::string name(entry(signNames, stay.index));
    showSign(files, stay.index, search.tipNamesSign ? name + ": " + dates : dates, form);
    showChange(changeTextOn(stay, search), form);
    showSeason(search.day.month, search.north, form);
}

void searchSign(const platform::Files& files, const WindowSearch& search, SignReading& form, SkyState& state) {
    const auto stay = findSignStay(files, search.moment);
    if (!stay) {
        signFromFixedTable(files, base::dateValueOf(search.day), form, state);
        showChange(std::nullopt, form);
        return;
    }
    showStay(files, *stay, search, form);
    state.currentSignIndex = stay->index;
}

/// A stored change text as a moment; the zero day's midnight for one that holds none.
base::CivilMoment changeMoment(const SignReading& form) {
    return base::civilMomentOf(base::readDateTime(form.changeText).value_or(0));
}

std::string changeMessage(base::CivilDate date, base::CivilTime time, const SignReading& form,
                          const platform::TimeZone& zone) {
    const base::CivilMoment local = base::civilMomentOf(universalToLocal(time, date, zone));
    return "Change of sign along the day " + base::shortDateText(local.date) + " at " + base::timeText(local.time) +
           " (local time).\n" + form.seasonText;
}

} // namespace

const SignReading& signoZod(const SignSources& sources, base::DateValue now, std::string_view hemisferio,
                            SkyState& state) {
    const WindowSearch search{.moment = localToUniversal(now, sources.zone),
                              .day = base::civilDateOf(now),
                              .tipNamesSign = true,
                              .changeHoldsDate = false,
                              .north = hemisferio == shell::word::norte};
    searchSign(sources.files, search, state.cardOfDaySign, state);
    return state.cardOfDaySign;
}

const SignReading& signoZodCalendar(const platform::Files& files, base::CivilDate date, std::string_view hemisferio,
                                    SkyState& state) {
    const WindowSearch search{.moment = base::dateValueOf(date, {12, 0, 0}),
                              .day = date,
                              .tipNamesSign = false,
                              .changeHoldsDate = true,
                              .north = hemisferio == shell::word::norte || hemisferio.empty()};
    searchSign(files, search, state.anotherDaySign, state);
    return state.anotherDaySign;
}

void signFromFixedTable(const platform::Files& files, base::DateValue date, SignReading& form, SkyState& state) {
    const FixedSign& sign = fixedSignOf(base::civilDateOf(date));
    showSign(files, sign.index, sign.tip, form);
    state.currentSignIndex = sign.index;
    state.signImagePath = signPictureDirectory(files);
}

void clearChange(SignReading& form) {
    showChange(std::nullopt, form);
    form.seasonText.clear();
}

std::string changeOfSignMessage(const SignReading& form, base::CivilDate today, const platform::TimeZone& zone) {
    return changeMessage(today, changeMoment(form).time, form, zone);
}

std::string changeOfSignMessageCalendar(const SignReading& form, const platform::TimeZone& zone) {
    const base::CivilMoment change = changeMoment(form);
    return changeMessage(change.date, change.time, form, zone);
}

std::string signDescriptionPath(const platform::Files& files, std::int16_t index) {
    return files.applicationDirectory() + "\\sigtxt\\" + base::lowerWindows1252(entry(signFileNames, index)) + ".txt";
}

std::string signDescription(const platform::Files& files, std::int16_t index) {
    using enum platform::Files::Status;
    const std::string path = signDescriptionPath(files, index);
    const platform::Files::Content content = files.read(path);
    if (content.status == missing) throw base::RunTimeError(base::RunTimeError::Code::fileNotFound, path);
    if (content.status == unreadable) throw base::RunTimeError(base::RunTimeError::Code::pathFileAccess, path);
    return base::fromWindows1252(content.bytes);
}

namespace agent {

void signoZod(const SignSources& sources, base::DateValue now, SkyState& state) {
    const auto stay = findSignStay(sources.files, localToUniversal(now, sources.zone));
    if (!stay) {
        signoZodSt(now, state);
        return;
    }
    state.signoText = entry(signNames, stay->index);
    if (limitOn(*stay, base::civilDateOf(now))) state.signoText += " (<=>)";
}

void signoZodSt(base::DateValue date, SkyState& state) {
    state.signoText = entry(signNames, fixedSignOf(base::civilDateOf(date)).index);
}

std::string tipsignzodiac(const SignSources& sources, base::DateValue now, SkyState& state) {
    signoZod(sources, now, state);
    return "Zodiac Sign: " + state.signoText;
}

} // namespace agent

} // namespace velmoriax::sky
