// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/numeric_text.h"

#include "base/number_text.h"
#include "base/text_lines.h"

namespace velmoriax::tarot {

namespace {

/// Takes one of the characters off the front; false when the first character is another one.
bool takeOne(std::string_view& text, std::string_view characters) {
    if (text.empty() || characters.find(text.front()) == characters.npos) return false;
    text.remove_prefix(1);
    return true;
}

bool takeDigits(std::string_view& text) {
    bool any = false;
    while (takeOne(text, "0123456789")) any = true;
    return any;
}

/// A digit, and behind it digits and commas: the number of digits between two commas does not matter.
bool takeWholePart(std::string_view& text) {
    const bool any = takeDigits(text);
    while (any && takeOne(text, "0123456789,")) {
    }
    return any;
}

} // namespace

bool isNumericText(std::string_view text) {
    text = base::trimmed(text);
    takeOne(text, "+-");
    const bool whole = takeWholePart(text);
    const bool fraction = takeOne(text, ".") && takeDigits(text);
    if (!whole && !fraction) return false;
    if (takeOne(text, "eE")) {
        takeOne(text, "+-");
        if (!takeDigits(text)) return false;
    }
    return text.empty();
}

} // namespace velmoriax::tarot
