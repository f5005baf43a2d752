// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/text_lines.h"

#include <algorithm>

namespace velmoriax::base {

namespace {

/// How many characters the end of a line has that begins at `at`.
std::size_t endLength(std::string_view text, std::size_t at) {
    const std::string_view rest = text.substr(at);
    return rest.starts_with(lineEnd) ? lineEnd.size() : std::min<std::size_t>(rest.size(), 1);
}

} // namespace

Line takeLine(std::string_view& text, LineEnds ends) {
    std::size_t length = std::min(text.find_first_of(ends == LineEnds::any ? lineEnd : "\n"), text.size());
    const bool returnBefore = ends == LineEnds::feeds && text.substr(0, length).ends_with('\r');
    if (returnBefore) --length;
    const Line line{text.substr(0, length), text.substr(length, endLength(text, length))};
    text.remove_prefix(line.text.size() + line.end.size());
    return line;
}

std::string_view trimmed(std::string_view text, std::string_view characters) {
    const std::size_t first = text.find_first_not_of(characters);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(characters) - first + 1);
}

} // namespace velmoriax::base
