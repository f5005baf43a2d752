// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/profile_text.h"

#include "base/text_lines.h"
#include "base/windows1252.h"

#include <algorithm>
#include <optional>

namespace velmoriax::shell {

namespace {

std::string_view trim(std::string_view text) {
    return base::trimmed(text, " \t");
}

bool sameName(std::string_view a, std::string_view b) {
    return a.size() == b.size() && base::lowerWindows1252(a) == base::lowerWindows1252(b);
}

std::string_view withoutQuotes(std::string_view value) {
    const bool quoted =
        value.size() >= 2 && value.front() == value.back() && (value.front() == '"' || value.front() == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

std::string_view upToLineEnd(std::string_view value) {
    return value.substr(0, value.find_first_of(std::string_view("\r\n\0", 3)));
}

/// One line of the file: its text without the line end, and where it begins.
struct Line {
    std::string_view text;
    std::size_t begin = 0;
    std::size_t next = 0; ///< where the next line begins
};

std::optional<Line> lineAt(std::string_view file, std::size_t begin) {
    std::string_view rest = file.substr(std::min(begin, file.size()));
    if (rest.empty()) return std::nullopt;
    const std::string_view text = base::takeLine(rest, base::LineEnds::feeds).text;
    return Line{text, begin, file.size() - rest.size()};
}

std::optional<std::string_view> headerOf(const Line& line) {
    const std::string_view text = trim(line.text);
    if (text.empty() || text.front() != '[') return std::nullopt;
    const std::size_t bracket = text.find(']');
    if (bracket == std::string_view::npos) return std::nullopt;
    return trim(text.substr(1, bracket - 1));
}

/// What a search finds: the section's place, and the key's line in it.
struct Place {
    bool sectionFound = false;
    std::size_t sectionEnd = 0; ///< behind the section's last line that is not blank
    std::optional<Line> key;
    std::size_t equalSign = 0; ///< within the key's line
};

bool holdsKey(const Line& line, std::string_view key, std::size_t& equalSign) {
    equalSign = line.text.find('=');
    const bool isComment = trim(line.text).starts_with(';');
    return !isComment && equalSign != std::string_view::npos && sameName(trim(line.text.substr(0, equalSign)), key);
}

std::size_t sectionBody(std::string_view file, std::string_view section) {
    for (auto line = lineAt(file, 0); line; line = lineAt(file, line->next)) {
        const auto header = headerOf(*line);
        if (header && sameName(*header, section)) return line->next;
    }
    return std::string_view::npos;
}

Place find(std::string_view file, std::string_view section, std::string_view key) {
    Place place;
    const std::size_t body = sectionBody(file, section);
    if (body == std::string_view::npos) return place;
    place.sectionFound = true;
    place.sectionEnd = body;
    for (auto line = lineAt(file, body); line; line = lineAt(file, line->next)) {
        if (headerOf(*line)) break;
        if (!trim(line->text).empty()) place.sectionEnd = line->next;
        if (holdsKey(*line, key, place.equalSign)) {
            place.key = line;
            break;
        }
    }
    return place;
}

std::string_view lineEndIn(std::string_view file) {
    const std::size_t feed = file.find('\n');
    const bool feedAlone = feed != std::string_view::npos && (feed == 0 || file[feed - 1] != '\r');
    return feedAlone ? "\n" : "\r\n";
}

std::string inserted(std::string_view file, std::size_t at, const std::string& line) {
    std::string result(file.substr(0, at));
    const std::string lineEnd(lineEndIn(file));
    if (!result.empty() && result.back() != '\n') result += lineEnd;
    return result + line + lineEnd + std::string(file.substr(at));
}

} // namespace

std::string profileValue(std::string_view file, std::string_view section, std::string_view key) {
    const Place place = find(file, section, key);
    if (!place.key) return {};
    return std::string(withoutQuotes(trim(upToLineEnd(place.key->text.substr(place.equalSign + 1)))));
}

std::string withProfileValue(std::string_view file, std::string_view section, std::string_view key,
                             std::string_view value) {
    const std::string_view stored = upToLineEnd(value);
    const Place place = find(file, section, key);
    if (place.key) {
        const std::size_t valueBegin = place.key->begin + place.equalSign + 1;
        const std::size_t lineEnd = place.key->begin + place.key->text.size();
        return std::string(file.substr(0, valueBegin)) + std::string(stored) + std::string(file.substr(lineEnd));
    }
    const std::string line = std::string(key) + "=" + std::string(stored);
    if (place.sectionFound) return inserted(file, place.sectionEnd, line);
    const std::string header = "[" + std::string(section) + "]";
    return inserted(file, file.size(), header + std::string(lineEndIn(file)) + line);
}

} // namespace velmoriax::shell
