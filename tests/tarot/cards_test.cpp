// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/date_text.h"
#include "base/run_time_error.h"
#include "support/fakes.h"
#include "tarot/card_catalogue.h"
#include "tarot/card_descriptions.h"
#include "tarot/card_tip.h"
#include "tarot/drawn_card.h"

#include <algorithm>

namespace velmoriax::tarot {
namespace {

const std::string home = "/home/ann/velmoriax";

TEST(CardCatalogue, DatesBecomeCards) {
    const test::Table<const char*, int, const char*, const char*> rows{
        {"11/15/2026", 18, "XVIII. The Moon", "not reduced"},
        {"15-11-2026", 18, "XVIII. The Moon", "order and separators do not count"},
        {"9/29/2026", 8, "VIII. Justice", "once less 22"},
        {"9/9/2020", 22, "XXII. The World", "22 is not reduced"},
        {"9/9/2021", 1, "I. The Magician", "23 begins anew"},
        {"9/29/1999", 4, "IV. The Emperor", "twice less 22"},
        {"8/26/1999", 22, "XXII. The World", "nor behind a reduction"},
        {"2/29/2000", 15, "XV. The Devil", "a leap day"},
    };
    CardState state;
    for (const auto& [date, card, name, why] : rows) {
        const DrawnCard drawn = sumcartdia(date, {home, "marsellaone"}, state).drawn;
        EXPECT_EQ(drawn.card, card) << why;
        EXPECT_EQ(drawn.tip, name) << why;
        EXPECT_EQ(state.currentCard, card) << why;
    }
    EXPECT_EQ(sumcartdia("9/29/1999", {home, "marsellaone"}, state).digitSum, 48) << "the sum itself is not reduced";
    EXPECT_THROW(sumcartdia("//", {home, "marsellaone"}, state), base::RunTimeError);
}

TEST(CardCatalogue, ANameIsFilledWhenItsCardIsDrawnAndNoOther) {
    CardState state;
    for (const std::int16_t card : {14, 0, 23, -1}) {
        state.currentCard = card;
        fillCardTipName(state);
    }
    EXPECT_EQ(state.cardTipNames[13], "XIV. Temperance");
    EXPECT_EQ(std::ranges::count(state.cardTipNames, ""), 21);
}

TEST(CardCatalogue, PicturesAndTextsHaveTheirNamesAndFolders) {
    EXPECT_EQ(majorPictureFile(6), "amantes6.jpg");
    EXPECT_EQ(majorTextFile(6), "enamorados6.txt") << "the sixth card has two stems";
    EXPECT_EQ(majorPictureDir({home, "oldones"}) + majorPictureFile(9), home + "\\imagenes3\\ermitaño9.jpg");
    EXPECT_EQ(majorPictureDir({home, "Oldones"}), home) << "decks are compared exactly";
    EXPECT_EQ(minorTextDir(home), home + "\\mtextos\\");
    EXPECT_EQ(minorPictureFile(Suit::batons, 10), "10bastos.jpg");
    EXPECT_EQ(minorPictureFile(Suit::golds, 12), "caballo-oros.jpg");
    EXPECT_EQ(minorTextFile(Suit::cups, 13), "reina-copas.txt");
    EXPECT_THROW(majorPictureFile(0), base::RunTimeError);
    EXPECT_THROW(majorTextFile(23), base::RunTimeError);
    for (const int outside : {0, 15}) EXPECT_THROW(minorPictureFile(Suit::cups, outside), base::RunTimeError);
}

TEST(CardCatalogue, ARootTakesNoSubdirectoryExceptForTheBacks) {
    for (const char* deck : {"marsellaone", "marsellaclass", "oldones"}) EXPECT_EQ(majorPictureDir({"/", deck}), "/");
    EXPECT_EQ(minorPictureDir("/"), "/");
    EXPECT_EQ(majorTextDir("/"), "/");
    EXPECT_EQ(suitBackPath("/"), "/\\amenores\\reverso.jpg");
}

// No two texts are of one length, so that the length tells the card as well as that nothing is missing.
TEST(CardDescriptions, EveryCardHasItsPiecesAndLengthAndIsPlainAscii) {
    const test::Table<int, std::size_t> rows{{3, 998}, {3, 1012}, {3, 864},  {3, 801}, {3, 916}, {3, 947},
                                             {3, 961}, {5, 863},  {3, 1001}, {3, 811}, {3, 938}, {3, 856},
                                             {4, 778}, {3, 906},  {4, 796},  {3, 978}, {4, 930}, {3, 918},
                                             {5, 952}, {3, 949},  {2, 1021}, {2, 777}};
    for (int card = 1; card <= majorCards; ++card) {
        SCOPED_TRACE(card);
        const auto& [pieceCount, length] = rows.at(static_cast<std::size_t>(card - 1));
        const auto pieces = cardDescriptionPieces(card);
        std::string text;
        for (const std::string_view piece : pieces) {
            const bool startsWithBlank = !text.empty() && card != 22;
            EXPECT_EQ(piece.find_first_not_of(' '), startsWithBlank ? 1U : 0U) << piece;
            EXPECT_NE(piece.back(), ' ') << piece;
            text += piece;
        }
        EXPECT_EQ(std::ssize(pieces), pieceCount);
        EXPECT_EQ(text.size(), length);
        EXPECT_TRUE(std::ranges::all_of(text, [](char c) { return c >= ' ' && c <= '~'; }));
    }
    EXPECT_TRUE(cardDescriptionPieces(8).back().ends_with("Sephirot: Hod (Splendor, astral plane)."));
    for (const int card : {-1, 0, 23}) EXPECT_TRUE(cardDescriptionPieces(card).empty()) << card;
}

TEST(CardTip, IsWorkedOutOnceADay) {
    test::FakeFiles files;
    shell::OptionsStore options(files);
    options.holders.tipocartas = "marsellaone";
    CardState cards;
    CardTip tip(files, options, cards);
    const base::DateValue noon = base::dateValueOf({2026, 11, 15}, {12, 0, 0});
    EXPECT_EQ(tip.tipLine(noon), "Card of Day: XVIII. The Moon");
    cards.currentCard = 3;
    tip.tipLine(noon);
    EXPECT_EQ(cards.currentCard, 3) << "nothing is computed a second time";
    EXPECT_EQ(tip.tipLine(noon + 1), "Card of Day: XIX. The Sun");
}

} // namespace
} // namespace velmoriax::tarot
