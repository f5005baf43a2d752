// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tarot/deck.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

/// The deck as data. A major card is its number, 1 to 22 in this program's own numbering: the Fool is 21, the World 22,
/// there is no card 0. A minor card is its suit and an index of 1 to 14.
namespace velmoriax::tarot {

inline constexpr int majorCards = 22;
inline constexpr int suitCards = 14;

/// A row of the major arcana. Two names differ on purpose: the tip and the description box say "XIV. Temperance" where
/// the result line of the Numbers reading says "XIV. The Temperance". Picture and text of card 6 have different stems.
struct MajorCard {
    std::string_view tipName;
    std::string_view numbersCardNames;
    std::string_view pictureFile;
    std::string_view textFile;
};

extern const std::array<MajorCard, majorCards> majorArcana;

/// The row of a card. Throws RunTimeError Subscript out of range outside 1 to 22.
const MajorCard& majorCard(int number);

enum class Suit { batons, cups, swords, golds };

struct SuitWords {
    std::string_view stem;    ///< word in the file names
    std::string_view caption; ///< caption in the oracle's log
};

/// In the order in which the oracle takes the suits.
extern const std::array<SuitWords, 4> suits;

/// What the process remembers of cards.
struct CardState {
    std::int16_t currentCard = 0;                     ///< card that the latest reading or click produced
    std::array<std::string, majorCards> cardTipNames; ///< filled when a card is first needed
};

/// The picture file of a major card, such as "ermitaño9.jpg". Throws outside 1 to 22, like all these lookups.
std::string majorPictureFile(int card);

/// Where the pictures of a deck lie: the application directory and, when that takes a subdirectory, the deck's own. An
/// unknown deck adds none, so that the picture is then missing.
std::string majorPictureDir(const Deck& deck);

std::string majorTextFile(int card);

/// "5bastos.jpg", "sota-copas.jpg"; index 1 to 14.
std::string minorPictureFile(Suit suit, int index);
std::string minorTextFile(Suit suit, int index);

/// Directories of the other card data, by the same rule of the subdirectory.
std::string minorPictureDir(std::string_view applicationDirectory);
std::string majorTextDir(std::string_view applicationDirectory);
std::string minorTextDir(std::string_view applicationDirectory);

/// The backs' paths, below "\amenores\" at any length of the application directory.
std::string suitBackPath(std::string_view applicationDirectory);
std::string majorBackPath(std::string_view applicationDirectory);

/// Writes the tip name of `currentCard` into `cardTipNames`. Does nothing outside 1 to 22.
void fillCardTipName(CardState& state);

/// `card` less 22 until it is at most 22: 23 becomes 1, 44 becomes 22. No second sum of digits. 0 and less are
/// unchanged.
int reducedToMajor(int card);

/// The same by 14, for the minor cards.
int reducedToMinor(int card);

} // namespace velmoriax::tarot
