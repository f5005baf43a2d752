// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/names_reading.h"

#include "support/fakes.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace velmoriax::tarot {
namespace {

constexpr const char* home = "/home/ann/velmoriax";

NamesReading read(const NameFields& fields) {
    CardState state;
    return readNames(fields, home, "marsellaone", state);
}

TEST(SumaNombres, AddsTheLettersOfAField) {
    struct Case {
        std::string_view field;
        std::optional<int> sum;
        const char* why;
    };
    const Case cases[]{
        {"María", 16, "an accent counts as the plain vowel"},
        {"Núñez", 29, "ñ has a value of its own"},
        {"Ana Luisa", 26, "blanks fall out"},
        {"José", 15, ""},
        {"Ñ", 6, "a capital Ñ"},
        {"Jose\u0301", 15, "a decomposed accent"},
        {"Müller-Weiß", 4 + 3 + 3 + 5 + 1 + 6 + 5 + 9, "ü, ß and the hyphen are no letters of the table"},
        {"ü", 0, "nothing but such letters"},
        {"   ", 0, "blanks alone"},
        {"Ana 😀 שרה", 7, "other scripts are skipped"},
        {"Juan2", std::nullopt, "a digit refuses the whole field"},
        {"Juan²", 1 + 4 + 1 + 5, "a raised 2 is none"},
    };
    for (const Case& row : cases) EXPECT_EQ(sumaNombres(row.field), row.sum) << row.field << ": " << row.why;
}

TEST(ReadNames, AddsTheFieldsToACard) {
    struct Case {
        NameFields fields;
        int card; // 0 for none
        int refused;
        const char* why;
    };
    const Case cases[]{
        {{"María", "", "Núñez", ""}, 1, 0, "45 twice less 22"},
        {{"Ana Luisa", "", "", ""}, 4, 0, "26"},
        {{"", "", "", "José"}, 15, 0, "15 is not reduced by 14"},
        {{"n", "i", "", ""}, 14, 0, "14"},
        {{"i", "i", "d", ""}, 22, 0, "22 stays"},
        {{"i", "i", "e", ""}, 1, 0, "23 begins anew"},
        {{"iiii", "h", "", ""}, 22, 0, "44"},
        {{"Juan2", "", "José", ""}, 15, 1, "the other fields still count"},
        {{"Juan2", "José", "3", ""}, 15, 2, "one warning a field"},
        {{"1", "2", "3", "4"}, 0, 4, "a digit in every field"},
        {{"Juan2", "", "", ""}, 0, 1, "a digit in the only field"},
        {{"", " ", "", ""}, 0, 0, "nothing to read"},
        {{"ü", "ç", "ß", "-"}, 0, 0, "no known letter"},
    };
    for (const Case& row : cases) {
        const NamesReading reading = read(row.fields);
        EXPECT_EQ(reading.refusedFields, row.refused) << row.why;
        EXPECT_EQ(reading.drawn.has_value(), row.card != 0) << row.why;
        EXPECT_EQ(reading.drawn ? reading.drawn->card : 0, row.card) << row.why;
    }
}

TEST(ReadNames, AnyOrderOfTheFieldsGivesTheSameCard) {
    NameFields fields{"Ana", "José", "Luisa", "Núñez"};
    const auto card = read(fields).drawn->card;
    do {
        EXPECT_EQ(read(fields).drawn->card, card);
    } while (std::next_permutation(fields.begin(), fields.end()));
    EXPECT_EQ(read({std::string(220'000, 'z') + "a", "", "", ""}).drawn->card, 1) << "a name of any length";
}

TEST(ReadNames, LogsTheFieldsAsTypedInTheCodePage) {
    test::FakeFiles files;
    const NamesReading reading = read({" Íñigo2", "", "Núñez", "漢😀"});
    EXPECT_EQ(reading.drawn->picturePath, std::string(home) + "\\imagenes\\carro7.jpg");
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

} // namespace
} // namespace velmoriax::tarot
