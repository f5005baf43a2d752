// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/oracle_view.h"

#include "base/run_time_error.h"
#include "support/fakes.h"

#include <gtest/gtest.h>

namespace velmoriax::tarot {
namespace {

TEST(OracleView, OffersADateUntilTheReadingHasStarted) {
    const base::CivilDate today{2026, 11, 15};
    OracleState state;
    state.readingDate = {2026, 11, 14}; // the window was opened yesterday
    EXPECT_EQ(dateToOffer(state, today), today);
    chooseDate(state, {1969, 7, 20});
    EXPECT_EQ(dateToOffer(state, today), (base::CivilDate{1969, 7, 20}));
    state.readingStarted = true;
    EXPECT_FALSE(dateToOffer(state, today));
    resetReading(state);
    EXPECT_EQ(dateToOffer(state, today), (base::CivilDate{1969, 7, 20})) << "the reset keeps the choice";
}

TEST(OracleView, ReadsCardTextsInTheirCodePage) {
    test::FakeFiles files;
    files.at("\\mtextos\\1oros.txt") = "Se\xF1or\r\n\x80";
    EXPECT_EQ(cardText(files, files.directory + "\\mtextos\\1oros.txt"), "Señor\r\n€");
    EXPECT_THROW(cardText(files, files.directory + "\\mtextos\\2oros.txt"), base::RunTimeError);
}

TEST(OracleView, TellsTheCardAndHowItLies) {
    EXPECT_EQ(spokenCard(spokenName(Suit::batons, 5), Orientation::inverted), "Five of Wands, inverted");
    EXPECT_EQ(spokenCard(spokenName(Suit::golds, 14), Orientation::notThrown), "King of Coins");
    EXPECT_EQ(spokenCard(spokenName(Suit::swords, 1), Orientation::normal), "Ace of Swords, upright");
}

} // namespace
} // namespace velmoriax::tarot
