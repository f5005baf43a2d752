// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/fakes.h"
#include "tarot/names_reading.h"
#include "tarot/numbers_reading.h"
#include "tarot/numeric_text.h"

namespace velmoriax::tarot {
namespace {

const std::string home = "/home/ann/velmoriax";

NamesReading read(const NameFields& fields) {
    CardState state;
    return readNames(fields, {home, "marsellaone"}, state);
}

TEST(NumericText, TakesANumberAsAWhole) {
    for (const char* number : {"0", "1978", " 12 ", "-7", "+7", "1.5", ".5", "5.", "1e5", "1E-5", "-.5e+3", "1,000",
                               "1,234,567.89", "999999999999"})
        EXPECT_TRUE(isNumericText(number)) << '"' << number << '"';
    for (const char* other : {"",    " ",  "12a",  "1 2", ".",   "e5",  "-",    "1e", "1e+", "1.2.3", "--1", ",5",
                              "- 5", "\t", "&HFF", "$5",  "inf", "nan", "0x1F", "٣",  "１",  "²",     "1é"})
        EXPECT_FALSE(isNumericText(other)) << '"' << other << '"';
}

TEST(SumarUnidades, ReducesTheDigitsAndNamesTheCardTwice) {
    const test::Table<const char*, int, int, std::string, const char*, const char*> rows{
        {"22", 4, 4, "IV. The Emperor", "IV. The Emperor", "digits, not the value"},
        {"77", 14, 14, "XIV. The Temperance", "XIV. Temperance", "result line and tip differ"},
        {"999999999999", 108, 20, "XX. The Trial", "XX. Judgment", "the largest that fits the box"},
        {"1.5", 6, 6, "VI. The Lovers", "VI. The Lovers", "the point counts nothing"},
        {" -1e5 ", 6, 6, "VI. The Lovers", "VI. The Lovers", "nor do sign, exponent and blanks"},
    };
    for (const auto& [text, sum, card, name, tip, why] : rows) {
        CardState state;
        const auto reading = SumarUnidades(text, {home, "oldones"}, state);
        ASSERT_TRUE(reading) << text;
        EXPECT_EQ(reading->digitSum, sum) << why;
        EXPECT_EQ(reading->drawn.card, card) << why;
        EXPECT_EQ(reading->resultLine, "It has corresponded... " + name) << why;
        EXPECT_EQ(reading->drawn.tip, tip) << why;
        EXPECT_EQ(state.currentCard, card) << why;
    }
}

TEST(SumarUnidades, LooksForThePictureInTheDeckAndLogsItsFile) {
    test::FakeFiles files;
    CardState state;
    const auto reading = SumarUnidades(" 1978", {home, "marsellaclass"}, state);
    EXPECT_EQ(reading->drawn.cardPath, home + "\\imagenes2\\emperatriz3.jpg");
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
        const auto error = test::errorOf([&] { SumarUnidades(zero, {home, "marsellaone"}, state); });
        ASSERT_TRUE(error) << zero;
        EXPECT_EQ(error->code(), base::RunTimeError::Code::subscriptOutOfRange);
        EXPECT_NE(error->detail().find(zero), std::string::npos) << error->detail();
    }
}

TEST(ReadNames, AddsTheFieldsToACard) {
    const test::Table<NameFields, int, int, const char*> rows{
        {{"María", "", "Núñez", ""}, 1, 0, "45 twice less 22"},
        {{"Ana Luisa", "", "", ""}, 4, 0, "26: blanks fall out"},
        {{"Juan²", "", "", ""}, 11, 0, "a raised 2 is no digit, and counts nothing"},
        {{"", "", "", "José"}, 15, 0, "15 is not reduced by 14"},
        {{"Juan2", "", "José", ""}, 15, 1, "the other fields still count"},
        {{"Juan2", "José", "3", ""}, 15, 2, "one warning a field"},
        {{"1", "2", "3", "4"}, 0, 4, "a digit in every field"},
        {{std::string(220'000, 'z') + "a", "", "", ""}, 1, 0, "a name of any length"},
        {{"", " ", "", ""}, 0, 0, "nothing to read"},
        {{"ü", "ç", "ß", "-"}, 0, 0, "no known letter"},
    };
    for (const auto& [fields, card, refused, why] : rows) {
        const NamesReading reading = read(fields);
        EXPECT_EQ(reading.refusedFields, refused) << why;
        EXPECT_EQ(reading.drawn ? reading.drawn->card : 0, card) << why;
    }
}

TEST(ReadNames, LogsTheFieldsAsTypedInTheCodePage) {
    test::FakeFiles files;
    const NamesReading reading = read({" Íñigo2", "", "Núñez", "漢😀"});
    EXPECT_EQ(reading.drawn->cardPath, home + "\\imagenes\\carro7.jpg");
    EXPECT_EQ(reading.drawn->tip, "VII. The Chariot");
    appendRecord(files, reading.record);
    EXPECT_EQ(files.at("\\logs\\resNames.log"), "                         \r\n"
                                                "=========================\r\n"
                                                "For the first name:  \xCD\xF1igo2\r\n"
                                                "For the second name: \r\n"
                                                "For the first surname: N\xFA\xF1"
                                                "ez\r\n"
                                                "For the second surname: ??\r\n"
                                                "Resultant card: carro7.jpg\r\n");
}

struct ResultLogs : testing::Test {
    test::FakeFiles files;
    test::FakeBoxes boxes;
    shell::OptionsStore options{files};
};

TEST_F(ResultLogs, AreKeptOnlyForExactlyYes) {
    for (const char* value : {"", "no", "Yes", "YES", "true"}) {
        options.setOption(shell::key::logResNumbers, value);
        EXPECT_FALSE(savesResults(options, numbersLog)) << value;
    }
    rememberSaving(options, numbersLog, true);
    EXPECT_TRUE(savesResults(options, numbersLog));
    EXPECT_FALSE(savesResults(options, namesLog) || savesResults(options, oracleLog)) << "each log has its own key";
    rememberSaving(options, numbersLog, false);
    EXPECT_EQ(options.option("LogResNumbers"), "no");
}

TEST_F(ResultLogs, AreEmptiedToOneLineBreakWhichTheNextRecordFollows) {
    files.at("\\logs\\resNumbers.log") = "old";
    deleteResults(numbersLog, files, boxes);
    EXPECT_EQ(files.at("\\logs\\resNumbers.log"), "old") << "answered No";
    boxes.yesNoAnswers = {true, true};
    deleteResults(numbersLog, files, boxes);
    deleteResults(oracleLog, files, boxes);
    EXPECT_EQ(files.at("\\logs\\resOracle.log"), "\r\n") << "a missing log comes into being";
    EXPECT_EQ(boxes.questions, (std::vector<std::string>{"Are you sure to completely delete the results?",
                                                         "Are you sure to completely delete the results?",
                                                         "Are you sure to completely delete the results of throws?"}));
    appendRecord(files, NumbersRecord{"1", "mago1.jpg"});
    EXPECT_TRUE(files.at("\\logs\\resNumbers.log").starts_with("\r\n                         \r\n"));
}

TEST_F(ResultLogs, FailInSilence) {
    files.readOnly = true;
    boxes.yesNoAnswers = {true};
    deleteResults(namesLog, files, boxes);
    appendRecord(files, NamesRecord{{"Ana", "", "", ""}, "mago1.jpg"});
    EXPECT_TRUE(files.contents.empty() && boxes.shown.empty());
}

} // namespace
} // namespace velmoriax::tarot
