// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/oracle_reading.h"

#include "base/date_text.h"
#include "base/number_text.h"
#include "base/rounding.h"
#include "shell/options.h"
#include "tarot/letter_values.h"

#include <cmath>

namespace velmoriax::tarot {

namespace {

constexpr std::int16_t invertedThrow = 2;

int wordsOfAllSuits(const OracleState& state) {
    int sum = 0;
    for (const SuitDraw& draw : state.suits) sum += draw.sum;
    return sum;
}

/// 1 or 2, evenly. In double precision, since in single the largest numbers below 1 would round up to a 3.
std::int16_t orientationByChance(platform::RandomSource& random) {
    random.seedFromClock();
    return static_cast<std::int16_t>(std::floor(2.0 * random.uniform() + 1.0));
}

Orientation thrown(OracleState& state, const OracleServices& services) {
    if (!services.options.holders.realThrow) return Orientation::notThrown;
    state.cardOrientation = orientationByChance(services.random);
    return state.cardOrientation == invertedThrow ? Orientation::inverted : Orientation::normal;
}

} // namespace

std::int16_t sustituir(std::string_view text) {
    return base::toInt16(letterSum(text) + base::digitSum(text));
}

std::int16_t sumdate(base::CivilDate date) {
    return base::toInt16(base::digitSum(base::shortDateText(date)));
}

void readThrowOption(shell::OptionsStore& options) {
    const std::string tirada = options.option(shell::key::tirada);
    options.holders.realThrow = !tirada.empty() && tirada != shell::word::objetiva;
}

std::optional<SuitReading> drawSuitCard(Suit suit, std::string_view question, OracleState& state,
                                        const OracleServices& services) {
    readThrowOption(services.options);
    state.wordSum = sustituir(question);
    state.finalDrawn = false;
    if (state.wordSum == 0) return std::nullopt;
    state.readingStarted = true;
    state.of(suit).sum = state.wordSum;
    state.dateSum = sumdate(state.readingDate);
    DrawnCard drawn = drawnMinor(base::toInt16(state.wordSum + state.dateSum), suit, services.applicationDirectory);
    state.of(suit).card = drawn.card;
    state.currentCardNumber = drawn.card;
    drawn.orientation = thrown(state, services);
    SuitRecord record{suit, std::string(question), drawn.pictureFile, drawn.orientation};
    return SuitReading{std::move(drawn), std::move(record)};
}

std::optional<FinalReading> drawFinalCard(std::string_view swordsText, base::DateValue now, OracleState& state,
                                          const OracleServices& services) {
    readThrowOption(services.options);
    state.dateSum = sumdate(state.readingDate);
    return sumapalos(swordsText, now, state, services);
}

std::optional<FinalReading> sumapalos(std::string_view swordsText, base::DateValue now, OracleState& state,
                                      const OracleServices& services) {
    const int words = wordsOfAllSuits(state);
    state.globalCard = base::toInt16(words + state.dateSum);
    if (words == 0) return std::nullopt;
    DrawnCard drawn = drawnMajor(state.globalCard, {services.applicationDirectory, services.options.holders.tipocartas},
                                 services.cards);
    state.globalCard = drawn.card;
    state.currentCardNumber = drawn.card;
    state.finalDrawn = true;
    drawn.orientation = thrown(state, services);
    FinalRecord record{std::string(swordsText), now, state.readingDate, drawn.pictureFile, drawn.orientation};
    return FinalReading{std::move(drawn), std::move(record)};
}

void chooseDate(OracleState& state, base::CivilDate date) {
    state.readingDate = date;
    state.dateChosen = true;
    state.finalDrawn = false;
}

void resetReading(OracleState& state) {
    state.readingStarted = false;
    state.finalDrawn = false;
    state.dateSum = 0;
    state.wordSum = 0;
    state.suits = {};
}

std::string dateButtonCaption(base::CivilDate readingDate) {
    return "- Date of reading -\n" + base::longDateTextWithoutComma(readingDate);
}

bool isDrawn(Suit suit, const OracleState& state) {
    return state.of(suit).card != 0;
}

std::optional<std::string> openSuitText(Suit suit, OracleState& state, std::string_view applicationDirectory) {
    const std::int16_t card = state.of(suit).card;
    if (card == 0) return std::nullopt;
    state.currentCardNumber = card;
    return minorTextDir(applicationDirectory) + minorTextFile(suit, card);
}

std::optional<std::string> openFinalText(OracleState& state, std::string_view applicationDirectory) {
    if (!state.finalDrawn) return std::nullopt;
    state.currentCardNumber = state.globalCard;
    return majorTextDir(applicationDirectory) + majorTextFile(state.globalCard);
}

} // namespace velmoriax::tarot
