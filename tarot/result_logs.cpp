// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/result_logs.h"

#include "base/date_text.h"
#include "base/text_lines.h"
#include "base/windows1252.h"

#include <vector>

namespace velmoriax::tarot {

namespace {

using Lines = std::vector<std::string>;

const std::string blankLine(25, ' ');
const std::string doubleRule(25, '=');
const std::string singleRule(22, '-');

constexpr std::array<std::string_view, 4> nameCaptions{
    "For the first name: ", "For the second name: ", "For the first surname: ", "For the second surname: "};

/// By the order of Orientation.
constexpr std::array<std::string_view, 3> orientationWords{"", " (Normal)", " (Inverted)"};

std::string withOrientation(const std::string& pictureFile, Orientation orientation) {
    return pictureFile + std::string(orientationWords[static_cast<std::size_t>(orientation)]);
}

Lines linesOf(const NumbersRecord& record) {
    return {blankLine, doubleRule, "For the number: " + record.number, "Resultant Card: " + record.pictureFile};
}

Lines linesOf(const NamesRecord& record) {
    Lines lines{blankLine, doubleRule};
    for (std::size_t i = 0; i < nameCaptions.size(); ++i)
        lines.push_back(std::string(nameCaptions[i]) + record.fields[i]);
    lines.push_back("Resultant card: " + record.pictureFile);
    return lines;
}

Lines linesOf(const SuitRecord& record) {
    return {singleRule, std::string(suits[static_cast<std::size_t>(record.suit)].caption) + record.question,
            "Resultant card: " + withOrientation(record.pictureFile, record.orientation)};
}

/// The log has always cut the date out of its button's caption four letters too late: "ay, November 15 2026".
std::string dateOfRead(base::CivilDate date) {
    constexpr std::size_t lettersLost = 4;
    return base::longDateTextWithoutComma(date).substr(lettersLost);
}

Lines linesOf(const FinalRecord& record) {
    if (record.swordsText.empty()) return {};
    return {doubleRule,
            "Date of saving: " + base::generalText(record.savedAt),
            "Date for the read: " + dateOfRead(record.readingDate),
            "Global resultant card: " + withOrientation(record.pictureFile, record.orientation),
            doubleRule,
            blankLine};
}

std::string pathOf(const ResultLog& log, const platform::Files& files) {
    return files.applicationDirectory() + std::string(log.file);
}

void append(platform::Files& files, const ResultLog& log, const Lines& lines) {
    std::string bytes;
    for (const std::string& line : lines) bytes.append(base::toWindows1252(line)).append(base::lineEnd);
    files.append(pathOf(log, files), bytes);
}

} // namespace

void appendRecord(platform::Files& files, const NumbersRecord& record) {
    append(files, numbersLog, linesOf(record));
}

void appendRecord(platform::Files& files, const NamesRecord& record) {
    append(files, namesLog, linesOf(record));
}

void appendRecord(platform::Files& files, const SuitRecord& record) {
    append(files, oracleLog, linesOf(record));
}

void appendRecord(platform::Files& files, const FinalRecord& record) {
    append(files, oracleLog, linesOf(record));
}

bool savesResults(const shell::OptionsStore& options, const ResultLog& log) {
    return options.option(log.optionKey) == "yes";
}

void rememberSaving(shell::OptionsStore& options, const ResultLog& log, bool saves) {
    options.setOption(log.optionKey, saves ? "yes" : "no");
}

void showResults(const ResultLog& log, const platform::Files& files, platform::DocumentOpener& opener) {
    opener.open(pathOf(log, files));
}

void deleteResults(const ResultLog& log, platform::Files& files, platform::MessageBoxes& boxes) {
    if (boxes.askYesNo(std::string(log.deleteQuestion))) files.replace(pathOf(log, files), std::string(base::lineEnd));
}

} // namespace velmoriax::tarot
