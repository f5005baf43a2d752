// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/date_text.h"
#include "base/run_time_error.h"
#include "tarot/card_catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace velmoriax::tarot {
namespace {

constexpr const char* home = "/home/ann/velmoriax";

TEST(CardCatalogue, DatesBecomeCards) {
    struct Row {
        const char* date;
        int sum;
        int card;
        const char* name;
        const char* reason;
    };
    const Row rows[] = {
        {"11/15/2026", 18, 18, "XVIII. The Moon", "stands as it is"},
        {"15-11-2026", 18, 18, "XVIII. The Moon", "order and separators do not count"},
        {"9/29/2026", 30, 8, "VIII. Justice", "once less 22"},
        {"9/9/2020", 22, 22, "XXII. The World", "22 is not reduced"},
        {"9/9/2021", 23, 1, "I. The Magician", "23 begins anew"},
        {"9/29/1999", 48, 4, "IV. The Emperor", "twice less 22"},
        {"2/29/2000", 15, 15, "XV. The Devil", "a leap day"},
    };
    for (const Row& row : rows) {
        CardState state;
        const DateReading reading = sumcartdia(row.date, home, "marsellaone", state);
        EXPECT_EQ(reading.digitSum, row.sum) << row.reason;
        EXPECT_EQ(reading.card, row.card) << row.reason;
        EXPECT_EQ(reading.name, row.name) << row.reason;
        EXPECT_EQ(state.currentCard, row.card) << row.reason;
    }
    CardState state;
    EXPECT_THROW(sumcartdia("//", home, "marsellaone", state), base::RunTimeError);
}

TEST(CardCatalogue, ReductionsBeginAnewBehindTheLastCard) {
    EXPECT_EQ(reducedToMajor(44), 22);
    EXPECT_EQ(reducedToMajor(45), 1);
    EXPECT_EQ(reducedToMajor(0), 0);
    EXPECT_EQ(reducedToMinor(14), 14);
    EXPECT_EQ(reducedToMinor(15), 1);
}

TEST(CardCatalogue, ANameIsFilledWhenItsCardIsDrawnAndNoOther) {
    CardState state;
    state.currentCard = 14;
    fillCardTipName(state);
    EXPECT_EQ(state.cardTipNames[13], "XIV. Temperance");
    EXPECT_EQ(std::ranges::count(state.cardTipNames, ""), 21);
    for (const int outside : {0, 23, -1}) {
        state.currentCard = static_cast<std::int16_t>(outside);
        fillCardTipName(state);
    }
    EXPECT_EQ(std::ranges::count(state.cardTipNames, ""), 21);
    EXPECT_EQ(majorCard(14).numbersName, "XIV. The Temperance");
}

TEST(CardCatalogue, PicturesAndTextsOfTheSixthCardHaveDifferentStems) {
    EXPECT_EQ(majorPictureFile(6), "amantes6.jpg");
    EXPECT_EQ(majorTextFile(6), "enamorados6.txt");
    EXPECT_EQ(majorPictureDir(home, "oldones") + majorPictureFile(9), std::string(home) + "\\imagenes3\\ermitaño9.jpg");
    EXPECT_THROW(majorPictureFile(0), base::RunTimeError);
    EXPECT_THROW(majorTextFile(23), base::RunTimeError);
}

TEST(CardCatalogue, ARootTakesNoSubdirectoryExceptForTheBacks) {
    for (const char* deck : {"marsellaone", "marsellaclass", "oldones"}) EXPECT_EQ(majorPictureDir("/ab", deck), "/ab");
    EXPECT_EQ(majorPictureDir(home, "Oldones"), home) << "decks are compared exactly";
    EXPECT_EQ(minorPictureDir("/ab"), "/ab");
    EXPECT_EQ(majorTextDir("/ab"), "/ab");
    EXPECT_EQ(minorTextDir(home), std::string(home) + "\\mtextos\\");
    EXPECT_EQ(suitBackPath("/ab"), "/ab\\amenores\\reverso.jpg");
}

TEST(CardCatalogue, TheFiftySixMinorsHaveNamesOfTheirOwn) {
    std::set<std::string> names;
    for (const Suit suit : {Suit::batons, Suit::cups, Suit::swords, Suit::golds})
        for (int index = 1; index <= suitCards; ++index) names.insert(minorPictureFile(suit, index));
    EXPECT_EQ(names.size(), 56U);
    for (const char* known :
         {"1bastos.jpg", "10espadas.jpg", "sota-copas.jpg", "caballo-oros.jpg", "reina-bastos.jpg", "rey-oros.jpg"})
        EXPECT_TRUE(names.contains(known)) << known;
    EXPECT_EQ(minorTextFile(Suit::golds, 14), "rey-oros.txt");
    EXPECT_THROW(minorPictureFile(Suit::cups, 0), base::RunTimeError);
    EXPECT_THROW(minorPictureFile(Suit::cups, 15), base::RunTimeError);
}

} // namespace
} // namespace velmoriax::tarot
