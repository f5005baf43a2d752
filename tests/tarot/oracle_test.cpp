// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/run_time_error.h"
#include "support/fakes.h"
#include "tarot/ambient_sound.h"
#include "tarot/oracle_view.h"

namespace velmoriax::tarot {
namespace {

const base::CivilDate november15{2026, 11, 15}; // digits 18
const base::DateValue evening = base::dateValueOf({2026, 11, 16}, {20, 5, 9});

/// A text that counts exactly so much: nines of "i" and one digit for the rest.
std::string textWorth(int sum) {
    return std::string(static_cast<std::size_t>(sum / 9), 'i') + std::to_string(sum % 9);
}

struct Oracle : testing::Test {
    test::FakeFiles files;
    test::FakeRandom random;
    shell::OptionsStore options{files};
    OracleState state;
    CardState cards;
    OracleServices services{options, random, files.directory, cards};

    Oracle() {
        options.holders.tipocartas = "marsellaone";
        state.readingDate = november15;
    }
    auto draw(Suit suit, std::string_view question) { return drawSuitCard(suit, question, state, services); }
    auto drawFinal(std::string_view swordsText = "x") { return drawFinalCard(swordsText, evening, state, services); }
};

TEST(Sustituir, CountsLettersAndDigitsAndNothingElse) {
    const test::Table<const char*, int, const char*> rows{
        {"Hola mundo", 43, "blanks fall out"},
        {"man\u0303ana", 18, "a decomposed ñ is one letter"},
        {"ajrá bks clt dmuú envé fñw goxó hpy iqzí", 4 + 6 + 9 + 16 + 20 + 18 + 28 + 24 + 36, "the whole table"},
        {"ÁÉÍÓÚÑ", 1 + 5 + 9 + 7 + 4 + 6, "accented capitals"},
        {"0123456789", 45, "digits count as themselves"},
        {"üçàß¿?-'\t\n.", 0, "no letters of the table"},
        {"😀 שלום مرحبا ١٢", 0, "other scripts and their digits"},
    };
    for (const auto& [text, sum, why] : rows) EXPECT_EQ(sustituir(text), sum) << text << ": " << why;
    EXPECT_EQ(sustituir(textWorth(32767)), 32767);
    EXPECT_THROW(sustituir(textWorth(32768)), base::RunTimeError);
}

TEST_F(Oracle, ThrowsForRealUnlessTheOptionIsEmptyOrObjective) {
    const test::Table<const char*, bool> rows{{"", false}, {"objetiva", false}, {"real", true}, {"Objetiva", true}};
    for (const auto& [value, real] : rows) {
        options.setOption(shell::key::tirada, value);
        readThrowOption(options);
        EXPECT_EQ(options.holders.realThrow, real) << value;
    }
}

TEST_F(Oracle, DrawsTheSuitsCardFromWordsAndDate) {
    EXPECT_EQ(draw(Suit::batons, "Hola mundo")->drawn.cardPath, files.directory + "\\amenores\\5bastos.jpg");
    EXPECT_EQ(state.currentCardNumber, 5);
    services.applicationDirectory = "/";
    EXPECT_EQ(draw(Suit::batons, "Hola mundo")->drawn.cardPath, "/5bastos.jpg") << "a root has no folders";

    state.readingDate = {2020, 1, 9}; // digits 14: the words alone decide
    for (const auto& [words, picture] : test::Table<int, const char*>{
             {1, "1oros.jpg"}, {14, "rey-oros.jpg"}, {15, "1oros.jpg"}, {25, "sota-oros.jpg"}, {44, "2oros.jpg"}})
        EXPECT_EQ(draw(Suit::golds, textWorth(words))->drawn.pictureFile, picture) << words;
}

TEST_F(Oracle, AQuestionThatCountsNothingOnlyClosesTheFinalCard) {
    draw(Suit::cups, "a");
    ASSERT_TRUE(drawFinal());
    EXPECT_FALSE(draw(Suit::cups, " ?! "));
    EXPECT_FALSE(state.finalDrawn);
    EXPECT_TRUE(state.readingStarted);
    EXPECT_EQ(state.of(Suit::cups).sum, 1);
    EXPECT_EQ(state.of(Suit::cups).card, 5);
}

TEST_F(Oracle, AddsWordSumsAndDateToTheFinalCard) {
    const test::Table<std::array<int, 4>, std::string, const char*> rows{
        // batons, cups, swords, golds; the date adds 18
        {{43, 0, 20, 0}, "diablo15.jpg", "81 less 66"},
        {{0, 5, 0, 0}, "mago1.jpg", "23 begins again"},
    };
    for (const auto& [words, picture, why] : rows) {
        resetReading(state);
        for (std::size_t i = 0; i < 4; ++i) draw(static_cast<Suit>(i), words[i] ? textWorth(words[i]) : "");
        const auto reading = drawFinal();
        EXPECT_EQ(reading->drawn.cardPath, files.directory + "\\imagenes\\" + picture) << why;
        EXPECT_EQ(reading->drawn.tip, majorCard(state.globalCard).tipName);
        EXPECT_EQ(cards.currentCard, state.currentCardNumber);
    }
    resetReading(state);
    EXPECT_FALSE(drawFinal()) << "no suit was asked";
    EXPECT_FALSE(state.finalDrawn);
}

TEST_F(Oracle, TurnsCardsByChanceInARealThrowAlone) {
    random.numbers = {0.75F};
    EXPECT_EQ(draw(Suit::cups, "a")->drawn.orientation, Orientation::notThrown);
    EXPECT_EQ(random.seeds, 0);

    options.setOption(shell::key::tirada, "real");
    random.numbers = {0.0F, 0.49999997F, 0.5F, 0.99999994F};
    for (const auto expected :
         {Orientation::normal, Orientation::normal, Orientation::inverted, Orientation::inverted}) {
        EXPECT_EQ(draw(Suit::cups, "a")->drawn.orientation, expected);
        EXPECT_EQ(state.of(Suit::cups).card, 5) << "chance does not choose the card";
    }
    EXPECT_EQ(random.seeds, 4);
    random.numbers = {0.5F};
    EXPECT_EQ(drawFinal()->drawn.orientation, Orientation::inverted);
    EXPECT_EQ(state.cardOrientation, 2);
}

TEST_F(Oracle, LogsSuitsAndFinalCard) {
    appendRecord(files, draw(Suit::batons, "Hola mundo")->record);
    options.setOption(shell::key::tirada, "real");
    random.numbers = {0.0F, 0.5F};
    appendRecord(files, draw(Suit::swords, "¿Mañana?")->record);
    appendRecord(files, drawFinal("later 😀")->record);
    const std::string expected = "----------------------\r\n"
                                 "Question for the batons: Hola mundo\r\n"
                                 "Resultant card: 5bastos.jpg\r\n"
                                 "----------------------\r\n"
                                 "Question for the swords: \xBFMa\xF1\x61na?\r\n"
                                 "Resultant card: 8espadas.jpg (Normal)\r\n"
                                 "=========================\r\n"
                                 "Date of saving: 11/16/2026 20:05:09\r\n"
                                 "Date for the read: ay, November 15 2026\r\n"
                                 "Global resultant card: muerte13.jpg (Inverted)\r\n"
                                 "=========================\r\n"
                                 "                         \r\n";
    EXPECT_EQ(files.at("\\logs\\resOracle.log"), expected);
    appendRecord(files, drawFinal("")->record);
    EXPECT_EQ(files.at("\\logs\\resOracle.log"), expected) << "only with a text in the swords' box";
}

TEST_F(Oracle, OpensTheTextsOfDrawnCardsUntilADateOrAResetClosesThem) {
    EXPECT_FALSE(openSuitText(Suit::cups, state, files.directory));
    draw(Suit::cups, "Hola mundo");
    ASSERT_TRUE(drawFinal());
    EXPECT_EQ(openSuitText(Suit::cups, state, files.directory), files.directory + "\\mtextos\\5copas.txt");
    EXPECT_EQ(openFinalText(state, files.directory), files.directory + "\\textos\\estrella17.txt");
    EXPECT_EQ(state.currentCardNumber, 17);

    chooseDate(state, {2026, 1, 5});
    EXPECT_FALSE(openFinalText(state, files.directory));
    resetReading(state);
    EXPECT_FALSE(state.readingStarted || openSuitText(Suit::cups, state, files.directory));
    EXPECT_TRUE(state.dateChosen);
    EXPECT_EQ(dateButtonCaption(state.readingDate), "- Date of reading -\nMonday, January 5 2026");
}

TEST_F(Oracle, OffersADateUntilTheReadingHasStarted) {
    state.readingDate = {2026, 11, 14}; // the window was opened yesterday
    EXPECT_EQ(dateToOffer(state, november15), november15);
    chooseDate(state, {1969, 7, 20});
    EXPECT_EQ(dateToOffer(state, november15), (base::CivilDate{1969, 7, 20}));
    state.readingStarted = true;
    EXPECT_FALSE(dateToOffer(state, november15));
    resetReading(state);
    EXPECT_EQ(dateToOffer(state, november15), (base::CivilDate{1969, 7, 20})) << "the reset keeps the choice";
}

TEST_F(Oracle, TellsTheCardAndReadsItsTextInTheCodePage) {
    files.at("\\mtextos\\1oros.txt") = "Se\xF1or\r\n\x80";
    EXPECT_EQ(cardText(files, files.directory + "\\mtextos\\1oros.txt"), "Señor\r\n€");
    EXPECT_THROW(cardText(files, files.directory + "\\mtextos\\2oros.txt"), base::RunTimeError);
    EXPECT_EQ(spokenCard(spokenName(Suit::batons, 5), Orientation::inverted), "Five of Wands, inverted");
    EXPECT_EQ(spokenCard(spokenName(Suit::golds, 14), Orientation::notThrown), "King of Coins");
    EXPECT_EQ(spokenCard(spokenName(Suit::swords, 1), Orientation::normal), "Ace of Swords, upright");
}

using Mode = platform::SongPlayer::Mode;

struct Ambient : testing::Test {
    test::FakeFiles files;
    test::FakeSongPlayer songs;
    test::FakeEvents events;
    shell::OptionsStore options{files};
    AmbientServices services{songs, events, options, files.directory};
    AmbientSound sound;
    std::string supplied = files.directory + "\\Are You Lonesome Tonight.mid";

    Ambient() { songs.songs = {supplied, "/music/own.mid"}; }
};

TEST_F(Ambient, StartsByTheTwoOptions) {
    using Starts = std::vector<std::string>;
    const test::Table<const char*, const char*, bool, Starts, const char*> rows{
        {"", "", true, {supplied}, "sound is on by default"},
        {"yes", "/music/own.mid", true, {"/music/own.mid"}, "the user's own song"},
        {"nop", "", false, {}, "switched off"},
        {"Yes", "", false, {}, "words are compared exactly"},
        {"yes", "/music/gone.mid", true, {}, "the switch is on although the song is missing"},
    };
    for (const auto& [wanted, song, on, starts, why] : rows) {
        options.setOption(shell::key::soundAmbient, wanted);
        options.setOption(shell::key::songAmbient, song);
        songs.starts.clear();
        sound = {.midiDeviceId = 7, .timerOn = true};
        EXPECT_EQ(startAmbient(sound, services), on) << why;
        EXPECT_EQ(sound.timerOn, on) << why;
        EXPECT_EQ(songs.starts, starts) << why;
        if (on) EXPECT_EQ(sound.midiDeviceId != 0, !starts.empty()) << why;
    }
}

TEST_F(Ambient, LetsEventsRunBetweenOpeningAndPlaying) {
    events.whatRuns = [this] {
        EXPECT_EQ(songs.mode(songs.openDevice), Mode::stopped);
        EXPECT_EQ(sound.midiDeviceId, 0) << "the device is known only afterwards";
        tickMidi(sound, songs);
    };
    startAmbient(sound, services);
    EXPECT_EQ(events.runs, 1);
    EXPECT_EQ(songs.starts.size(), 1U);
}

TEST_F(Ambient, BeginsAgainOnlyFromTheEnd) {
    startAmbient(sound, services);
    tickMidi(sound, songs);
    EXPECT_EQ(songs.starts.size(), 1U);
    songs.ends();
    tickMidi(sound, songs);
    EXPECT_EQ(songs.starts, (std::vector{supplied, supplied}));
    stopMidi(sound, songs);
    EXPECT_NE(sound.midiDeviceId, 0) << "the number stays when the window closes";
    tickMidi(sound, songs);
    EXPECT_EQ(songs.starts.size(), 2U);
}

TEST_F(Ambient, SwitchesAndTakesAChosenSongAtTheNextStart) {
    test::FakeBoxes boxes;
    startAmbient(sound, services);
    boxes.fileAnswers = {"/music/own.mid", std::nullopt};
    chooseSong(boxes, services);
    chooseSong(boxes, services);
    EXPECT_EQ(options.option(shell::key::songAmbient), "/music/own.mid") << "a cancel leaves it";
    EXPECT_EQ(songs.song, supplied) << "what plays goes on";

    switchAmbientOff(sound, services);
    EXPECT_EQ(songs.openDevice, 0);
    EXPECT_FALSE(sound.timerOn);
    EXPECT_EQ(options.option(shell::key::soundAmbient), "nop");
    switchAmbientOn(sound, services);
    EXPECT_EQ(songs.starts.back(), "/music/own.mid");
    EXPECT_EQ(options.option(shell::key::soundAmbient), "yes");
}

TEST_F(Ambient, RefusesASongWhosePathCannotBeRemembered) {
    options.setOption(shell::key::songAmbient, "/music/own.mid");
    for (const std::string& path : {std::string("/music/\u6b4c.mid"), "/" + std::string(300, 'a') + ".mid",
                                    std::string("/music/two\nlines.mid")}) {
        test::FakeBoxes boxes;
        boxes.fileAnswers = {path};
        chooseSong(boxes, services);
        EXPECT_EQ(boxes.shown.size(), 1U) << path;
        EXPECT_EQ(options.option(shell::key::songAmbient), "/music/own.mid") << path;
    }
}

} // namespace
} // namespace velmoriax::tarot
