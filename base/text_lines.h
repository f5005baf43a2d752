// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

/// Lines of texts, and the spaces at their ends.
namespace velmoriax::base {

/// The end of each line that the program writes.
inline constexpr std::string_view lineEnd = "\r\n";

/// A line of a text, and the characters that end it; none behind a last line without an end.
struct Line {
    std::string_view text;
    std::string_view end;
};

enum class LineEnds {
    feeds, ///< line feeds end lines; a carriage return at the end of a line belongs to its end
    any    ///< a carriage return alone ends a line as well
};

/// Removes the first line from a text and returns it. Of an empty text it is an empty line.
Line takeLine(std::string_view& text, LineEnds ends);

/// The text without the characters of a set at its ends: spaces alone, unless others are named.
std::string_view trimmed(std::string_view text, std::string_view characters = " ");

} // namespace velmoriax::base
