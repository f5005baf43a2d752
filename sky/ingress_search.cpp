// SPDX-License-Identifier: GPL-3.0-or-later
#include "sky/ingress_search.h"

#include "base/date_text.h"
#include "base/text_lines.h"
#include "base/windows1252.h"
#include "sky/zodiac_tables.h"

#include <string>
#include <string_view>

namespace velmoriax::sky {

namespace {

std::string_view takeLine(std::string_view& table) {
    return base::takeLine(table, base::LineEnds::feeds).text;
}

void readDate(std::string_view text, base::DateValue& date) {
    if (const auto read = base::readDateTime(text)) date = *read;
}

/// A line is cut at its first "-"; without one it holds a start alone.
void readStay(std::string_view line, SignStay& stay) {
    const std::size_t cut = line.find('-');
    readDate(line.substr(0, cut), stay.start);
    if (cut != std::string_view::npos) readDate(line.substr(cut + 1), stay.end);
}

/// True when a line of the table holds the moment; `stay` is then that line's.
bool findInTable(std::string_view table, base::DateValue moment, SignStay& stay) {
    for (std::string_view line = takeLine(table); !line.empty(); line = takeLine(table)) {
        readStay(line, stay);
        if (!base::isBefore(moment, stay.start) && !base::isBefore(stay.end, moment)) return true;
    }
    return false;
}

std::string tablePath(const platform::Files& files, std::string_view signFileName) {
    return files.applicationDirectory() + "\\fechas-db\\" + base::lowerWindows1252(signFileName) + ".txt";
}

} // namespace

std::optional<SignStay> findSignStay(const platform::Files& files, base::DateValue moment) {
    SignStay stay;
    for (const std::string_view name : signFileNames) {
        if (findInTable(files.read(tablePath(files, name)).bytes, moment, stay)) return stay;
        ++stay.index;
    }
    return std::nullopt;
}

} // namespace velmoriax::sky
