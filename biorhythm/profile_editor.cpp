// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/profile_editor.h"

#include "base/number_text.h"
#include "biorhythm/profile_store.h"

#include <algorithm>

namespace velmoriax::biorhythm {

namespace {

std::string_view from(std::string_view text, std::size_t place) {
    return text.substr(std::min(place, text.size()));
}

int onStepper(std::string_view label, int last) {
    return static_cast<int>(std::clamp(base::leadingNumber(label), 0.0, static_cast<double>(last)));
}

} // namespace

EditedProfile editedProfile(std::string_view line) {
    const ProfileFields fields = parseProfileLine(line);
    std::string_view hour = std::string_view(fields.timeText).substr(0, 2);
    if (hour.ends_with(':')) hour.remove_suffix(1);
    const std::string_view minute = from(fields.timeText, hour.size() == 1 ? 2 : 3);
    return {fields.name, profileDate(fields.dateText), {onStepper(hour, 23), onStepper(minute, 59), 0}};
}

void submitProfile(platform::Files& files, const std::string& copyPath, std::string_view name, base::CivilDate date,
                   base::CivilTime time) {
    const std::string timeText = std::to_string(time.hour) + ":" + std::to_string(time.minute);
    // The record joins the copy before that takes the list's place: at no moment does it stand in neither.
    const bool replaced = appendToCopy(files, copyPath, name, date, timeText) && replaceProfiles(files, copyPath);
    if (!replaced) appendProfile(files, name, date, timeText);
}

} // namespace velmoriax::biorhythm
