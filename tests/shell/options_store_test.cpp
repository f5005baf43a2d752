// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/option_values.h"
#include "shell/options_store.h"
#include "shell/profile_text.h"
#include "support/fakes.h"

namespace velmoriax::shell {
namespace {

TEST(ProfileText, ReadsTheFormatWithAllItsHabits) {
    const test::Table<std::string, std::string, const char*> rows{
        {"[opciones]\r\nMinimizar=toolbar\r\n", "toolbar", "the plain case"},
        {"[OPCIONES]\nminimizar=toolbar", "toolbar", "any case, LF alone, no line end at the last line"},
        {"  [ opciones ] \r\n  Minimizar  =  toolbar  \r\n", "toolbar", "blanks around section, name and value"},
        {"[opciones]\r\nMinimizar=\" toolbar \"\r\n", " toolbar ", "one pair of quotes goes, blanks inside stay"},
        {"[opciones]\r\nMinimizar='\"x\"'\r\n", "\"x\"", "only the outer pair"},
        {"[opciones]\r\nMinimizar=\"x'\r\n", "\"x'", "no pair"},
        {"[opciones]\r\nMinimizar=a=b\r\n", "a=b", "a value holds an equal sign"},
        {"[opciones]\r\n;Minimizar=no\r\nMinimizar=1\r\nMinimizar=2\r\n", "1", "comment, then the first key counts"},
        {"[opciones]\r\n[x]\r\nMinimizar=1\r\n[opciones]\r\nMinimizar=2\r\n", "", "the first section counts"},
        {"Minimizar=1\r\n[x]\r\nMinimizar=2\r\n", "", "outside any section, and in another one"},
        {std::string("[opciones]\r\nMinimizar=ab\0cd\r\n", 30), "ab", "a NUL ends a value"},
        {std::string(5000, '\0') + "\n[opciones]\nMinimizar=x\n", "x", "noise before"},
    };
    for (const auto& [file, value, why] : rows) EXPECT_EQ(profileValue(file, "opciones", "Minimizar"), value) << why;
}

TEST(ProfileText, AWriteChangesThatOneLineAlone) {
    const test::Table<std::string, std::string, const char*> rows{
        {"", "[s]\r\nk=v\r\n", "a new file"},
        {"[s]\nother=1\n", "[s]\nother=1\nk=v\n", "the file's own line ends"},
        {"[s]\r\nK = old\r\nz=1\r\n", "[s]\r\nK =v\r\nz=1\r\n", "in place, under the name as it is spelled"},
        {"[s]\r\na=1\r\n\r\n[t]\r\nk=t\r\n", "[s]\r\na=1\r\nk=v\r\n\r\n[t]\r\nk=t\r\n",
         "behind the section's last line"},
        {"\xFFjunk\r\n[t]\r\nx", "\xFFjunk\r\n[t]\r\nx\r\n[s]\r\nk=v\r\n", "a new section, at the end"},
        {"[s]\r\nk=old", "[s]\r\nk=v", "a last line without its end keeps none"},
    };
    for (const auto& [before, after, why] : rows) EXPECT_EQ(withProfileValue(before, "s", "k", "v"), after) << why;
}

struct OptionsStoreTest : testing::Test {
    test::FakeFiles files_;
    OptionsStore options_{files_};
};

TEST_F(OptionsStoreTest, NamesWithAccentsAreOneByteALetterAndAValueIsCutAt254) {
    options_.setOption(key::moduloInicial, "Oracle");
    EXPECT_EQ(files_.at("\\opciones.ini"), "[opciones]\r\nM\xF3"
                                           "dulo Inicial=Oracle\r\n");
    EXPECT_EQ(options_.leerModuloInicial(), "Oracle");
    EXPECT_EQ(options_.holders.moduloInicial, "Oracle");
    options_.setOption(key::songAmbient, std::string(253, 'a') + "ññ" + std::string(50, 'b'));
    EXPECT_EQ(options_.option(key::songAmbient), std::string(253, 'a') + "ñ");
}

TEST_F(OptionsStoreTest, WhatCannotBeReadOrWrittenStays) {
    files_.at("\\opciones.ini") = "[opciones]\r\nTirada=real\r\n";
    files_.readOnly = true;
    options_.setOption(key::tirada, "objetiva");
    EXPECT_EQ(options_.option(key::tirada), "real");
    files_.readOnly = false;
    files_.unreadable.insert("/home/ann/velmoriax/opciones.ini");
    EXPECT_EQ(options_.option(key::tirada), "");
    EXPECT_EQ(options_.writeProfileString(optionsSection, key::tirada, "x", options_.fileName()), 0);
    EXPECT_EQ(files_.at("\\opciones.ini"), "[opciones]\r\nTirada=real\r\n") << "not overwritten by a default";
}

TEST_F(OptionsStoreTest, ComparisonsAreExact) {
    files_.at("\\opciones.ini") = "[opciones]\r\nMinimizar=Systray\r\ntipocartas=foo\r\nHemisferio=sur\r\n"
                                  "Nivel Alertas=Medium (change of phase + critical  + actual s.)\r\n";
    options_.readAtStart();
    options_.readAtModuleLoad();
    options_.readAtCardOfDayLoad();
    EXPECT_EQ(options_.holders.minimizeTo, "toolbar");
    EXPECT_EQ(options_.holders.tipocartas, "") << "no deck is selected";
    EXPECT_EQ(options_.holders.hemisferio, "Norte");
    EXPECT_EQ(options_.holders.alertLevel, "med1");
}

TEST(OptionValues, TheListSpeaksEnglishAndItsHandlerSpanish) {
    for (const AlertLevel& level : alertLevels) {
        EXPECT_EQ(alertLevelOfCaption(level.caption), level.code);
        EXPECT_EQ(alertLevelOfSpanishCaption(level.spanishCaption), level.code);
        EXPECT_EQ(alertLevelOfSpanishCaption(level.caption), "maxi");
    }
    EXPECT_EQ(alertLevelOfCaption("none"), "maxi");
}

} // namespace
} // namespace velmoriax::shell
