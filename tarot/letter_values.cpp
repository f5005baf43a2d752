// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/letter_values.h"

#include "base/windows1252.h"

#include <algorithm>
#include <array>
#include <string>

namespace velmoriax::tarot {

namespace {

/// The letters of the values 1 to 9. All of them have the same number in Unicode as in the code page.
constexpr std::array<std::u32string_view, 9> letterRows{
    U"ajrá", U"bks", U"clt", U"dmuú", U"envé", U"fñw", U"goxó", U"hpy", U"iqzí",
};

int letterValue(char byte) {
    const auto letter = static_cast<char32_t>(static_cast<unsigned char>(byte));
    const auto* row = std::ranges::find_if(
        letterRows, [letter](std::u32string_view letters) { return letters.find(letter) != letters.npos; });
    return row == letterRows.end() ? 0 : static_cast<int>(row - letterRows.begin()) + 1;
}

} // namespace

int letterSum(std::string_view text) {
    int sum = 0;
    for (const char letter : base::lowerWindows1252(base::toWindows1252(text))) sum += letterValue(letter);
    return sum;
}

} // namespace velmoriax::tarot
