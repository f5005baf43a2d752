// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/date_value.h"
#include "platform/document_opener.h"
#include "platform/files.h"
#include "platform/message_boxes.h"
#include "shell/options_store.h"
#include "tarot/drawn_card.h"

#include <array>
#include <string>
#include <string_view>

/// The logs of results: plain text for the user to read, which the program only adds to. Every failure is silent: a
/// reading is worth more than its record. The folder of the logs is supplied, and not made here when it is gone.
namespace velmoriax::tarot {

struct ResultLog {
    std::string_view file; ///< behind the application directory
    std::string_view optionKey;
    std::string_view deleteQuestion;
};

inline constexpr ResultLog numbersLog{"\\logs\\resNumbers.log", shell::key::logResNumbers,
                                      "Are you sure to completely delete the results?"};
inline constexpr ResultLog namesLog{"\\logs\\resNames.log", shell::key::logResNames,
                                    "Are you sure to completely delete the results?"};
inline constexpr ResultLog oracleLog{"\\logs\\resOracle.log", shell::key::logResOracle,
                                     "Are you sure to completely delete the results of throws?"};

/// The fields of all records hold the texts as they were typed.
struct NumbersRecord {
    std::string number;
    std::string pictureFile;
};

/// First and second name, first and second surname.
using NameFields = std::array<std::string, 4>;

struct NamesRecord {
    NameFields fields;
    std::string pictureFile;
};

struct SuitRecord {
    Suit suit = Suit::batons;
    std::string question;
    std::string pictureFile;
    Orientation orientation = Orientation::notThrown;
};

/// It is written only when the box of the swords holds a text, whichever questions were asked: users know the log so.
struct FinalRecord {
    std::string swordsText;
    base::DateValue savedAt = 0;
    base::CivilDate readingDate;
    std::string pictureFile;
    Orientation orientation = Orientation::notThrown;
};

/// Adds a record to the end of its log, which is created if its folder exists.
void appendRecord(platform::Files& files, const NumbersRecord& record);
void appendRecord(platform::Files& files, const NamesRecord& record);
void appendRecord(platform::Files& files, const SuitRecord& record);
void appendRecord(platform::Files& files, const FinalRecord& record);

/// Whether the log is kept: its option is exactly "yes". A window asks at its load alone; from then on the check mark
/// of "Save results" decides.
bool savesResults(const shell::OptionsStore& options, const ResultLog& log);

/// Remembers the check mark as "yes" or "no".
void rememberSaving(shell::OptionsStore& options, const ResultLog& log, bool saves);

/// Hands the log to what the desktop shows texts with.
void showResults(const ResultLog& log, const platform::Files& files, platform::DocumentOpener& opener);

/// Asks, and on Yes leaves a log of one empty line: two bytes, and not a missing file.
void deleteResults(const ResultLog& log, platform::Files& files, platform::MessageBoxes& boxes);

} // namespace velmoriax::tarot
