// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/card_descriptions.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace velmoriax::tarot {
namespace {

struct Row {
    int card;
    std::size_t pieces;
    std::size_t length; ///< of the joined text
    std::string_view opening;
};

constexpr Row rows[]{
    {1, 3, 998, "The Magician is the archetype of the active ma"},
    {2, 3, 1012, "The High Priestess is the guardian of unconsci"},
    {3, 3, 864, "The Empress represents the fertile mother who "},
    {4, 3, 801, "The Emperor is the symbol of power. We see a m"},
    {5, 3, 916, "Except in rare cases each human being grows an"},
    {6, 3, 947, "The Lovers or The Two Ways, and in others The "},
    {7, 3, 961, "Imagine Julio Caesar driving his triumfal char"},
    {8, 5, 863, "It represents a great energy, or a concept not"},
    {9, 3, 1001, "The Hermit or the Wise person is illuminated w"},
    {10, 3, 811, "The Wheel of Fortune suggests the cyclical pro"},
    {11, 3, 938, "Normally we think about 'strength' in physical"},
    {12, 3, 856, "The Hanged Man or The Pillory (in older decks "},
    {13, 4, 778, "This arcanum is related to the hebraic letter "},
    {14, 3, 906, "There is certain kind of people who exude a se"},
    {15, 4, 796, "This arcanum is related to the hebraic letter "},
    {16, 3, 978, "Fire, thunders, dented rocks falling -this sou"},
    {17, 4, 930, "People always have watched the stars like a so"},
    {18, 3, 918, "The Moon symbolizes the hidden enemies, danger"},
    {19, 5, 952, "In general, the symbolism reveals that the arc"},
    {20, 3, 949, "A Cycle is fulfilled. There is a judgment and "},
    {21, 2, 1021, "The Fool is the most conflictive card of Tarot"},
    {22, 2, 777, "This card represents the culmination (we must "},
};

TEST(CardDescriptions, EveryCardHasItsPiecesAndLengthAndIsPlainAscii) {
    for (const Row& row : rows) {
        SCOPED_TRACE(row.card);
        const auto pieces = cardDescriptionPieces(row.card);
        std::string text;
        for (std::size_t i = 0; i < pieces.size(); ++i) {
            const bool startsWithBlank = i > 0 && !(row.card == 22 && i == 1);
            EXPECT_EQ(pieces[i].find_first_not_of(' '), startsWithBlank ? 1u : 0u) << "piece " << i + 1;
            EXPECT_NE(pieces[i].back(), ' ') << "piece " << i + 1;
            text += pieces[i];
        }
        EXPECT_EQ(pieces.size(), row.pieces);
        EXPECT_EQ(text.size(), row.length);
        EXPECT_TRUE(text.starts_with(row.opening)) << text;
        for (const char c : text) EXPECT_TRUE(c >= ' ' && c <= '~') << static_cast<int>(c);
    }
}

TEST(CardDescriptions, JusticeClosesWithItsSephirah) {
    EXPECT_TRUE(cardDescriptionPieces(8).back().ends_with("Sephirot: Hod (Splendor, astral plane)."));
}

TEST(CardDescriptions, NoOtherNumberHasOne) {
    for (const int card : {-1, 0, 23}) EXPECT_TRUE(cardDescriptionPieces(card).empty()) << card;
}

} // namespace
} // namespace velmoriax::tarot
