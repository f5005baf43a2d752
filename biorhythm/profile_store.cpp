// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/profile_store.h"

#include "base/date_text.h"
#include "base/number_text.h"
#include "base/run_time_error.h"
#include "base/text_lines.h"
#include "base/windows1252.h"
#include "biorhythm/field_text.h"

#include <algorithm>

namespace velmoriax::biorhythm {

namespace {

using Status = platform::Files::Status;

std::string profilesPath(const platform::Files& files) {
    return files.applicationDirectory() + "\\perfiles.txt";
}

std::vector<base::Line> linesOf(std::string_view bytes) {
    std::vector<base::Line> lines;
    while (!bytes.empty()) lines.push_back(base::takeLine(bytes, base::LineEnds::any));
    return lines;
}

std::optional<base::CivilTime> profileTime(std::string_view timeText) {
    const bool isTimeAlone = timeText.find('/') == std::string_view::npos;
    const auto value = isTimeAlone ? base::readDateTime(timeText) : std::nullopt;
    if (!value) return std::nullopt;
    const base::CivilTime time = base::civilTimeOf(*value);
    return base::CivilTime{time.hour, time.minute, 0};
}

std::optional<std::size_t> lastPlaceOf(std::string_view name, const std::vector<std::string>& names) {
    const auto found = std::find(names.rbegin(), names.rend(), name);
    if (found == names.rend()) return std::nullopt;
    return static_cast<std::size_t>(names.rend() - found) - 1;
}

bool isInList(const platform::Files& files, std::string_view recordBytes) {
    const std::string bytes = files.read(profilesPath(files)).bytes;
    return std::ranges::any_of(linesOf(bytes), [&](const base::Line& line) { return line.text == recordBytes; });
}

/// A new temporary file's path. After a failure shows its message and returns nothing.
std::optional<std::string> temporaryFile(platform::Files& files, platform::MessageBoxes& boxes,
                                         const RewriteMessages& messages) {
    const auto folder = files.temporaryFolder();
    auto tempName = folder ? files.createTemporaryFile(*folder, "tmp") : std::nullopt;
    if (!tempName)
        boxes.show(platform::BoxIcon::none, std::string(folder ? messages.nameFailure : messages.pathFailure));
    return tempName;
}

std::string withoutLinesThatContain(std::string_view bytes, std::string_view selected) {
    std::string kept;
    kept.reserve(bytes.size());
    for (const auto& [text, end] : linesOf(bytes)) {
        if (text.find(selected) != std::string_view::npos) continue;
        kept += text;
        kept += end.empty() ? base::lineEnd : end;
    }
    return kept;
}

} // namespace

ProfileFields parseProfileLine(std::string_view line) {
    const auto fields = fieldsOf(line, ',');
    return {std::string(fields.front()), std::string(fieldAt(fields, 1)), std::string(fieldAt(fields, 2))};
}

std::optional<base::CivilDate> profileDate(std::string_view dateText) {
    const auto parts = fieldsOf(dateText, '/');
    const auto month = base::wholeNumber(monthNumberFromName(parts.front(), {}));
    const auto day = base::wholeNumber(fieldAt(parts, 1));
    const auto year = base::wholeNumber(fieldAt(parts, 2));
    const auto isSmall = [](const std::optional<long>& number) { return number && *number > 0 && *number <= 9999; };
    if (!month || !isSmall(day) || !isSmall(year)) return std::nullopt;
    const base::CivilDate date{static_cast<int>(*year), static_cast<int>(*month), static_cast<int>(*day)};
    return base::isValid(date) ? std::optional(date) : std::nullopt;
}

std::optional<base::CivilMoment> profileBirth(const ProfileFields& fields) {
    const auto date = profileDate(fields.dateText);
    const auto time = profileTime(fields.timeText);
    if (!date || !time) return std::nullopt;
    return base::CivilMoment{*date, *time};
}

std::string monthNumberFromName(std::string_view name, std::string_view previous) {
    const auto month = base::monthOfEnglishName(name);
    return month ? std::to_string(*month) : std::string(previous);
}

std::vector<std::string> profileLines(const platform::Files& files) {
    const std::string bytes = files.read(profilesPath(files)).bytes;
    std::vector<std::string> lines;
    for (const base::Line& line : linesOf(bytes))
        if (!line.text.empty()) lines.push_back(base::fromWindows1252(line.text));
    return lines;
}

std::vector<std::string> profileNames(const platform::Files& files) {
    std::vector<std::string> names = profileLines(files);
    for (std::string& line : names) line.erase(std::min(line.find(','), line.size()));
    return names;
}

std::optional<base::CivilMoment> findProfile(const platform::Files& files, std::string_view name) {
    std::optional<base::CivilMoment> birth;
    const std::string nameInFile = base::fromWindows1252(base::toWindows1252(name));
    for (const std::string& line : profileLines(files)) {
        const ProfileFields fields = parseProfileLine(line);
        if (fields.name != nameInFile) continue;
        if (const auto read = profileBirth(fields)) birth = read;
    }
    return birth;
}

std::optional<std::size_t> selectedAtLoad(const std::vector<std::string>& names, std::string_view profileMainName) {
    if (!profileMainName.empty() || names.empty()) return lastPlaceOf(profileMainName, names);
    return 0;
}

std::optional<std::size_t> selectedAfterEdit(const std::vector<std::string>& names, std::string_view profileMainName) {
    if (names.empty()) return std::nullopt;
    return lastPlaceOf(profileMainName, names).value_or(names.size() - 1);
}

void createProfileList(platform::Files& files) {
    files.append(profilesPath(files), {});
}

std::string profileLine(std::string_view name, const RecordedBirth& birth) {
    const auto& [date, timeText] = birth;
    std::string line(name);
    line.append(",").append(base::monthNameEnglish(date.month));
    line += "/" + std::to_string(date.day) + "/" + std::to_string(date.year) + ",";
    return line.append(timeText);
}

namespace {

bool appendTo(platform::Files& files, const std::string& path, std::string bytes, const std::string& line) {
    const bool lastLineHasNoEnd = !bytes.empty() && base::lineEnd.find(bytes.back()) == std::string_view::npos;
    if (lastLineHasNoEnd) bytes += base::lineEnd;
    bytes.append(base::toWindows1252(line)).append(base::lineEnd);
    return files.replace(path, bytes);
}

} // namespace

std::string unreadableProfile(std::string_view name) {
    return "The record of \"" + std::string(name) +
           "\" cannot be read: it needs a date such as March/15/1980 and a time such as 7:45. It stays in the list as "
           "it is.";
}

bool appendProfile(platform::Files& files, std::string_view name, const RecordedBirth& birth) {
    const std::string path = profilesPath(files);
    const auto content = files.read(path);
    return content.status != Status::unreadable && appendTo(files, path, content.bytes, profileLine(name, birth));
}

bool appendToCopy(platform::Files& files, const std::string& copyPath, std::string_view name,
                  const RecordedBirth& birth) {
    const auto content = files.read(copyPath);
    return content.status == Status::read && appendTo(files, copyPath, content.bytes, profileLine(name, birth));
}

std::optional<std::string> saveProfile(platform::Files& files, platform::MessageBoxes& boxes,
                                       shell::OptionsStore& options, const RecordedBirth& birth) {
    const std::string name = boxes.askText("Name for this profile:", "Profile").value_or(std::string{});
    if (name.empty()) return std::nullopt;
    if (isInList(files, base::toWindows1252(profileLine(name, birth)))) {
        boxes.show(platform::BoxIcon::warning, "This profile exists already, put another please.", "Error");
        return std::nullopt;
    }
    if (!appendProfile(files, name, birth))
        throw base::RunTimeError(base::RunTimeError::Code::pathFileAccess, "perfiles.txt");
    options.setOption(shell::key::perfilBio, name);
    return base::fromWindows1252(base::toWindows1252(name));
}

std::optional<std::string> copyWithoutProfile(platform::Files& files, platform::MessageBoxes& boxes,
                                              std::string_view selectedLine, const RewriteMessages& messages) {
    if (selectedLine.empty()) return std::nullopt;
    const auto list = files.read(profilesPath(files));
    if (list.status != Status::read) return std::nullopt;
    auto path = temporaryFile(files, boxes, messages);
    if (!path) return std::nullopt;
    if (files.replace(*path, withoutLinesThatContain(list.bytes, base::toWindows1252(selectedLine)))) return path;
    files.remove(*path);
    return std::nullopt;
}

bool replaceProfiles(platform::Files& files, const std::string& temporaryPath) {
    return files.rename(temporaryPath, profilesPath(files));
}

void removeProfileLines(platform::Files& files, platform::MessageBoxes& boxes, std::string_view selectedLine,
                        const RewriteMessages& messages) {
    if (const auto copy = copyWithoutProfile(files, boxes, selectedLine, messages)) replaceProfiles(files, *copy);
}

} // namespace velmoriax::biorhythm
