// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/numbers_reading.h"

#include "base/run_time_error.h"
#include "support/fakes.h"
#include "tarot/numeric_text.h"

#include <gtest/gtest.h>

namespace velmoriax::tarot {
namespace {

constexpr const char* home = "/home/ann/velmoriax";

TEST(NumericText, TakesANumberAsAWhole) {
    for (const char* number : {"0", "1978", " 12 ", "-7", "+7", "1.5", ".5", "5.", "1e5", "1E-5", "-.5e+3", "1,000",
                               "1,234,567.89", "999999999999"})
        EXPECT_TRUE(isNumericText(number)) << '"' << number << '"';
    for (const char* other : {"",    " ",  "12a",  "1 2", ".",   "e5",  "-",    "1e", "1e+", "1.2.3", "--1", ",5",
                              "- 5", "\t", "&HFF", "$5",  "inf", "nan", "0x1F", "٣",  "１",  "²",     "1é"})
        EXPECT_FALSE(isNumericText(other)) << '"' << other << '"';
}

TEST(SumarUnidades, ReducesTheDigitsAndNamesTheCardTwice) {
    struct Case {
        const char* text;
        int sum;
        int card;
        const char* name;
        const char* tip;
        const char* why;
    };
    const Case cases[]{
        {"1978", 25, 3, "III. The Empress", "III. The Empress", "once less 22"},
        {"22", 4, 4, "IV. The Emperor", "IV. The Emperor", "digits, not the value"},
        {"77", 14, 14, "XIV. The Temperance", "XIV. Temperance", "result line and tip differ"},
        {"999999999999", 108, 20, "XX. The Trial", "XX. Judgment", "the largest that fits the box"},
        {"1.5", 6, 6, "VI. The Lovers", "VI. The Lovers", "the point counts nothing"},
        {" -1e5 ", 6, 6, "VI. The Lovers", "VI. The Lovers", "nor do sign, exponent and blanks"},
        {"96", 15, 15, "XV. The Devil", "XV. The Devil", "no reduction by 14 here"},
        {"499", 22, 22, "XXII. The World", "XXII. The World", "22 stays"},
        {"599", 23, 1, "I. The Magician", "I. The Magician", "23 begins anew"},
        {"99998", 44, 22, "XXII. The World", "XXII. The World", "44 is 22 once more"},
        {"99999", 45, 1, "I. The Magician", "I. The Magician", "45 begins anew"},
    };
    for (const Case& row : cases) {
        CardState state;
        const auto reading = SumarUnidades(row.text, home, "oldones", state);
        ASSERT_TRUE(reading) << row.text;
        EXPECT_EQ(reading->digitSum, row.sum) << row.why;
        EXPECT_EQ(reading->drawn.card, row.card) << row.why;
        EXPECT_EQ(reading->resultLine, std::string("It has corresponded... ") + row.name) << row.why;
        EXPECT_EQ(reading->drawn.tip, row.tip) << row.why;
        EXPECT_EQ(state.currentCard, row.card) << row.why;
    }
}

TEST(SumarUnidades, LooksForThePictureInTheDeckAndLogsItsFile) {
    test::FakeFiles files;
    CardState state;
    const auto reading = SumarUnidades(" 1978", home, "marsellaclass", state);
    EXPECT_EQ(reading->drawn.picturePath, std::string(home) + "\\imagenes2\\emperatriz3.jpg");
    EXPECT_EQ(reading->drawn.orientation, Orientation::notThrown);
    appendRecord(files, reading->record);
    EXPECT_EQ(files.at("\\logs\\resNumbers.log"), "                         \r\n"
                                                  "=========================\r\n"
                                                  "For the number:  1978\r\n"
                                                  "Resultant Card: emperatriz3.jpg\r\n");
}

TEST(SumarUnidades, ANumberWithoutADigitAbove0EndsTheProgramInPlainWords) {
    for (const char* zero : {"0", "000", "-0.0"}) {
        CardState state;
        try {
            SumarUnidades(zero, home, "marsellaone", state);
            ADD_FAILURE() << zero;
        } catch (const base::RunTimeError& error) {
            EXPECT_EQ(error.code(), base::RunTimeError::Code::subscriptOutOfRange);
            EXPECT_NE(error.detail().find(zero), std::string::npos) << error.detail();
        }
    }
}

} // namespace
} // namespace velmoriax::tarot
