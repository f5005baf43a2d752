// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tarot/result_logs.h"

#include <optional>

/// The card of a person's names, by the values of their letters.
namespace velmoriax::tarot {

/// The box that each field with a digit in it brings up. Its first line ends in a space.
inline constexpr std::string_view namesWarning = "You must insert only latin international characters: \n"
                                                 "a,b,c,d,e,f,g,h,i,j,k,l,m,n,ñ,o,p,q,r,s,t,u,v,w,x,y,z\n"
                                                 "Thank you.";

struct NamesReading {
    int refusedFields = 0;          ///< fields with a digit: each is warned of and counts 0
    std::optional<DrawnCard> drawn; ///< nothing when all fields count 0
    NamesRecord record;             ///< to be kept when a card was drawn
};

/// The value of one field, the plain sum of its letters; nothing when it contains a digit.
std::optional<int> sumaNombres(std::string_view nombre);

/// The reading of the four fields. Which name is in which field does not count.
NamesReading readNames(const NameFields& fields, const Deck& deck, CardState& state);

} // namespace velmoriax::tarot
