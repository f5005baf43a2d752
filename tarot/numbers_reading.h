// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tarot/result_logs.h"

#include <optional>

/// The card of a number: of its digits, not of its value.
namespace velmoriax::tarot {

inline constexpr std::string_view numbersWarning = "You must enter only numbers";

/// "It has corresponded... " and the card by its `numbersCardNames`, which its tip may not share.
std::string resultLineOf(const MajorCard& card);

struct NumbersReading {
    std::int16_t digitSum = 0; ///< unreduced
    DrawnCard drawn;
    std::string resultLine; ///< see `resultLineOf`
    NumbersRecord record;
};

/// The reading of a text as it was typed; nothing when it is no number as a whole, and then no card changes.
/// Throws RunTimeError Subscript out of range for a number without a digit above 0: there is no card 0.
std::optional<NumbersReading> SumarUnidades(std::string_view numero, const Deck& deck, CardState& state);

} // namespace velmoriax::tarot
