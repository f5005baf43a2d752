// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

/// Texts are UTF-8 in memory and Windows-1252 in every file that the program keeps or is supplied with.
namespace velmoriax::base {

/// The Windows-1252 bytes of a UTF-8 text. A letter followed by a combining accent is composed first; a character that
/// the code page lacks, and a byte that is no UTF-8, becomes "?".
std::string toWindows1252(std::string_view utf8);

/// The UTF-8 text of Windows-1252 bytes. No byte fails: the five bytes without a character become C1 controls.
std::string fromWindows1252(std::string_view bytes);

/// Lower case of Windows-1252 bytes, accented letters included; everything else stays.
std::string lowerWindows1252(std::string_view bytes);

} // namespace velmoriax::base
