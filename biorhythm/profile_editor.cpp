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

int numberUpTo(int last, std::string_view text) {
    return static_cast<int>(std::clamp(base::leadingNumber(text), 0.0, static_cast<double>(last)));
}

} // namespace

EditedProfile editedProfile(std::string_view line) {
    const ProfileFields fields = parseProfileLine(line);
    std::string_view hour = std::string_view(fields.timeText).substr(0, 2);
    if (hour.ends_with(':')) hour.remove_suffix(1);
    const std::string_view minute = from(fields.timeText, hour.size() == 1 ? 2 : 3);
    return {fields.name, profileDate(fields.dateText), {numberUpTo(23, hour), numberUpTo(59, minute), 0}};
}

bool submitProfile(platform::Files& files, const std::string& copyPath, std::string_view name,
                   const base::CivilMoment& birth) {
    const std::string timeText = std::to_string(birth.time.hour) + ":" + std::to_string(birth.time.minute);
    const RecordedBirth record{birth.date, timeText};
    // Appended to the copy before the copy replaces the list: at every moment one of the two files has the record.
    const bool replaced = appendToCopy(files, copyPath, name, record) && replaceProfiles(files, copyPath);
    if (!replaced) appendProfile(files, name, record);
    return replaced;
}

} // namespace velmoriax::biorhythm
