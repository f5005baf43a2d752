// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

/// The private-profile format, on bytes: sections in brackets, lines of name=value, a comment where a line begins with
/// ";". Names match without regard to case. The first section of a name and the first key of a name in it count.
namespace velmoriax::shell {

/// The value of a key: spaces and tabs around it and one pair of equal quotes are dropped. Empty when the key is
/// missing.
std::string profileValue(std::string_view file, std::string_view section, std::string_view key);

/// The file with that one line changed or added; every other byte stays. A missing section is added at the end. Line
/// ends are the file's own, CR LF for a new one. A value is cut at its first line end.
std::string withProfileValue(std::string_view file, std::string_view section, std::string_view key,
                             std::string_view value);

} // namespace velmoriax::shell
