// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>

/// The legal values of the options and what is taken for the others. All comparisons are exact and case-sensitive.
namespace velmoriax::shell {

struct AlertLevel {
    std::string_view code;
    std::string_view caption;        ///< as the options file and the list hold it
    std::string_view spanishCaption; ///< as the list's click handler tests it
};

/// The nine levels in the order of the list. Both captions of "med1" hold two spaces before the second plus.
extern const std::array<AlertLevel, 9> alertLevels;

/// The code of a stored caption; "maxi" for every other text, the empty one included.
std::string alertLevelOfCaption(std::string_view caption);

/// The code that the click handler of the options list comes to. It tests the Spanish captions while the list holds the
/// English ones, so every choice leads to "maxi" until the next start reads the file: that is how the list behaves.
std::string alertLevelOfSpanishCaption(std::string_view caption);

/// "systray" for itself and for the empty text, "toolbar" for all else.
std::string normalisedMinimize(std::string_view value);

/// The three decks stay as they are, the empty text is "marsellaone", any other leaves `previous`.
std::string normalisedDeck(std::string_view value, std::string_view previous);

/// `value`, or `standard` when it is empty.
std::string orDefault(std::string_view value, std::string_view standard);

} // namespace velmoriax::shell
