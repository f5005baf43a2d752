// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace velmoriax::tarot {

/// The sum of the letters' values, each 1 to 9, of a UTF-8 text. Capitals count as their small letters and the accented
/// vowels á é í ó ú as the plain ones; whatever is not in the table (ü, ç, ß, signs, digits, spaces) counts nothing.
int letterSum(std::string_view text);

} // namespace velmoriax::tarot
