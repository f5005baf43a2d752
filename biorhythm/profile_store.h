// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/date_value.h"
#include "platform/files.h"
#include "platform/message_boxes.h"
#include "shell/options_store.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The saved people, "perfiles.txt": one line for each, in order of saving, with name, birth date and time of birth
/// between commas, as in "Ann Sample,March/15/1980,7:45". Texts are UTF-8 here and Windows-1252 in the file. Lines end
/// in CR LF when written; other line ends can be read too. Reading never writes, and a file that is missing or
/// unreadable reads as empty.
namespace velmoriax::biorhythm {

/// The first three fields of a line. A comma in the name shifts the others: nothing in the format prevents it.
struct ProfileFields {
    std::string name;
    std::string dateText;
    std::string timeText;
};

/// A field that the line does not have is empty.
ProfileFields parseProfileLine(std::string_view line);

/// The date of a text such as "March/15/1980"; nothing for an unknown month and for a date that does not exist.
std::optional<base::CivilDate> profileDate(std::string_view dateText);

/// Birth date and time of a line; nothing when one of the two cannot be read.
std::optional<base::CivilMoment> profileBirth(const ProfileFields& fields);

/// The number of an English month name as text, "1" to "12"; `previous` for any other name.
std::string monthNumberFromName(std::string_view name, std::string_view previous);

/// All lines that are not empty, unchanged, and the names in them, in the file's order.
std::vector<std::string> profileLines(const platform::Files& files);
std::vector<std::string> profileNames(const platform::Files& files);

/// The birth of the person of that name. Of several lines the last one decides; lines whose date or time cannot be read
/// are skipped. Nothing when no line is left.
std::optional<base::CivilMoment> findProfile(const platform::Files& files, std::string_view name);

/// The entry of the main profile in the list of names, the last one of that name. When the list does not have the name,
/// the load of the view selects the first entry if no name is stored and else none; after editing the last entry is
/// selected. None in an empty list.
std::optional<std::size_t> selectedAtLoad(const std::vector<std::string>& names, std::string_view profileMainName);
std::optional<std::size_t> selectedAfterEdit(const std::vector<std::string>& names, std::string_view profileMainName);

/// Creates the file when it is missing; one that exists keeps its content.
void createProfileList(platform::Files& files);

/// A birth as a record has it. `timeText` is written as it is: with a two-digit minute from the view, without padding
/// from the editor.
struct RecordedBirth {
    base::CivilDate date;
    std::string_view timeText;
};

/// The line of a record.
std::string profileLine(std::string_view name, const RecordedBirth& birth);

/// What the user is told of a record that is passed over because its date or time cannot be read.
std::string unreadableProfile(std::string_view name);

/// Appends a record as a line of its own; false when it could not be written.
bool appendProfile(platform::Files& files, std::string_view name, const RecordedBirth& birth);

/// The same for a copy of the list, which has to exist.
bool appendToCopy(platform::Files& files, const std::string& copyPath, std::string_view name,
                  const RecordedBirth& birth);

/// "Save profile": asks for a name, refuses a record that the list already has in full, appends it and stores the name
/// as the main profile. Returns the name as it is read back from the file; nothing when nothing was saved. Throws a
/// path or file access error when the file cannot be written.
std::optional<std::string> saveProfile(platform::Files& files, platform::MessageBoxes& boxes,
                                       shell::OptionsStore& options, const RecordedBirth& birth);

/// The messages for a rewrite whose temporary file cannot be created.
struct RewriteMessages {
    std::string_view pathFailure;
    std::string_view nameFailure;
};
inline constexpr RewriteMessages deleteMessages{"Error getting temporary file path.",
                                                "Error getting temporary file name."};
inline constexpr RewriteMessages modifyMessages{"Error searching the path of file.",
                                                "Error searching the name of file."};

/// First half of a rewrite: copies to a temporary file, unchanged, all lines that do not contain the selected line. The
/// comparison is with any part of a line: when the selected record is the end of another person's line, that line is
/// left out too. Returns the temporary file's path; nothing after a failure, and for an empty selection.
std::optional<std::string> copyWithoutProfile(platform::Files& files, platform::MessageBoxes& boxes,
                                              std::string_view selectedLine, const RewriteMessages& messages);

/// Second half: replaces the list by the temporary file. False on failure; the list is unchanged then.
bool replaceProfiles(platform::Files& files, const std::string& temporaryPath);

/// Both halves: deletes a record.
void removeProfileLines(platform::Files& files, platform::MessageBoxes& boxes, std::string_view selectedLine,
                        const RewriteMessages& messages);

} // namespace velmoriax::biorhythm
