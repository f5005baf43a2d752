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

/// The saved people, "perfiles.txt": a line each, in order of saving, with name, birth date and time of birth between
/// commas, as in "Ann Sample,March/15/1980,7:45". Texts are UTF-8 here and Windows-1252 in the file. Lines end in CR
/// LF; other line ends are read too. Reading never writes, and a file that is missing or unreadable reads as empty.
namespace velmoriax::biorhythm {

/// The first three fields of a line. A comma in the name shifts the others: nothing in the format prevents it.
struct ProfileFields {
    std::string name;
    std::string dateText;
    std::string timeText;
};

/// A field that the line does not have is empty.
ProfileFields parseProfileLine(std::string_view line);

/// The date of a date text, "March/15/1980"; nothing for an unknown month and a date that does not exist.
std::optional<base::CivilDate> profileDate(std::string_view dateText);

/// Birth date and time of a line; nothing when one of the two is no date or time.
std::optional<base::CivilMoment> profileBirth(const ProfileFields& fields);

/// The number of an English month name as text, "1" to "12"; `previous` for any other name.
std::string monthNumberFromName(std::string_view name, std::string_view previous);

/// All non-empty lines as they stand, and their names, in the file's order.
std::vector<std::string> profileLines(const platform::Files& files);
std::vector<std::string> profileNames(const platform::Files& files);

/// The birth of the person of that name. Of several lines the last one decides; lines whose date or time cannot be read
/// are passed over. Nothing when no line is left.
std::optional<base::CivilMoment> findProfile(const platform::Files& files, std::string_view name);

/// The place in the list of the entry (the last one) of the stored name. Without it, at the load of the view: the first
/// entry when no name is stored, else none; after editing: the last entry. None in an empty list.
std::optional<std::size_t> selectedAtLoad(const std::vector<std::string>& names, std::string_view storedName);
std::optional<std::size_t> selectedAfterEdit(const std::vector<std::string>& names, std::string_view storedName);

/// Makes sure that the file exists; what it holds stays.
void createProfileList(platform::Files& files);

/// The line of a record. `timeText` stands as it is given: with a two-digit minute from the view, plain from the
/// editor.
std::string profileLine(std::string_view name, base::CivilDate birth, std::string_view timeText);

/// Appends a record on a line of its own; false when it could not be written.
bool appendProfile(platform::Files& files, std::string_view name, base::CivilDate birth, std::string_view timeText);

/// The same on a copy of the list.
bool appendToCopy(platform::Files& files, const std::string& copyPath, std::string_view name, base::CivilDate birth,
                  std::string_view timeText);

/// "Save profile": asks for a name, refuses a record that stands already in full, appends it and stores the name as the
/// main profile's. Gives the name as it reads back from the file; nothing when nothing was saved. Throws a path or file
/// access error when the file cannot be written.
std::optional<std::string> saveProfile(platform::Files& files, platform::MessageBoxes& boxes,
                                       shell::OptionsStore& options, base::CivilDate birth, std::string_view timeText);

/// What is told when the temporary file of a rewrite cannot be made.
struct RewriteMessages {
    std::string_view pathFailure;
    std::string_view nameFailure;
};
inline constexpr RewriteMessages deleteMessages{"Error getting temporary file path.",
                                                "Error getting temporary file name."};
inline constexpr RewriteMessages modifyMessages{"Error searching the path of file.",
                                                "Error searching the name of file."};

/// First half of a rewrite: copies to a temporary file, byte for byte, all lines in which the selected one does not
/// occur. The test is for a part of the line: a record that is the tail of another person's line takes that line with
/// it. Gives the temporary file's path; nothing after a failure, and for an empty selection.
std::optional<std::string> copyWithoutProfile(platform::Files& files, platform::MessageBoxes& boxes,
                                              std::string_view selectedLine, const RewriteMessages& messages);

/// Second half: puts the temporary file in the place of the list. On failure (false) the list stands.
bool replaceProfiles(platform::Files& files, const std::string& temporaryPath);

/// Both halves: deletes a record.
void removeProfileLines(platform::Files& files, platform::MessageBoxes& boxes, std::string_view selectedLine,
                        const RewriteMessages& messages);

} // namespace velmoriax::biorhythm
