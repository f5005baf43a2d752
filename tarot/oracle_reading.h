// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/date_value.h"
#include "platform/random_source.h"
#include "shell/options_store.h"
#include "tarot/result_logs.h"

#include <optional>

/// The oracle: four questions, each of which becomes a card of its suit, and a date, which with them becomes a major
/// card. The words and the date alone make the cards; chance only turns them, and only in a real throw.
namespace velmoriax::tarot {

/// A suit in the reading.
struct SuitDraw {
    std::int16_t sum = 0;  ///< word sum of its question, 0 when not asked: `batonSum`, `cupSum`, `swordSum`, `goldSum`
    std::int16_t card = 0; ///< 1 to 14, 0 when not drawn: `batonCard`, `cupCard`, `swordCard`, `goldCard`
};

struct OracleState {
    std::int16_t wordSum = 0; ///< of the latest question
    std::int16_t dateSum = 0;
    std::array<SuitDraw, 4> suits{};    ///< in the order of Suit
    std::int16_t globalCard = 0;        ///< 1 to 22, 0 before the final card
    std::int16_t currentCardNumber = 0; ///< drawn or opened most recently, of any suit; the windows need no such index
    std::int16_t cardOrientation = 0;   ///< of the latest throw, shared by the five cards: 1 normal, 2 inverted
    base::CivilDate readingDate;        ///< today until another one is chosen
    bool dateChosen = false;
    bool readingStarted = false; ///< a suit has been drawn: the date is frozen until the reset
    bool finalDrawn = false;

    SuitDraw& of(Suit suit) { return suits[static_cast<std::size_t>(suit)]; }
    const SuitDraw& of(Suit suit) const { return suits[static_cast<std::size_t>(suit)]; }
};

/// What a draw needs: the kind of throw and the deck, the random numbers, the directory of the data, and the names of
/// the cards, one of which the final card fills.
struct OracleServices {
    shell::OptionsStore& options;
    platform::RandomSource& random;
    std::string applicationDirectory;
    CardState& cards;
};

struct SuitReading {
    DrawnCard drawn;
    SuitRecord record;
};

struct FinalReading {
    DrawnCard drawn;
    FinalRecord record;
};

/// The word sum of a question: its letters by their values, and its digits as themselves. Throws RunTimeError Overflow
/// above 32767.
std::int16_t sustituir(std::string_view text);

/// The sum of the digits of a date.
std::int16_t sumdate(base::CivilDate date);

/// Sets `realThrow`: true for any value of the option that is neither "objetiva" nor empty.
void readThrowOption(shell::OptionsStore& options);

/// One suit's draw. Nothing when the question counts 0: then no card changes, but the final card is no longer open.
std::optional<SuitReading> drawSuitCard(Suit suit, std::string_view question, OracleState& state,
                                        const OracleServices& services);

/// The button "RESULTANT": kind of throw and date anew, then `sumapalos`.
std::optional<FinalReading> drawFinalCard(std::string_view swordsText, base::DateValue now, OracleState& state,
                                          const OracleServices& services);

/// The final card, of the suits' word sums and the date's. Nothing when no suit has been asked. `swordsText` is what
/// the box of the swords holds at that moment: the record is kept only with it.
std::optional<FinalReading> sumapalos(std::string_view swordsText, base::DateValue now, OracleState& state,
                                      const OracleServices& services);

/// Takes a date for the reading; the final card is no longer open.
void chooseDate(OracleState& state, base::CivilDate date);

/// A new reading. The date and its choice stay.
void resetReading(OracleState& state);

/// The two lines of the date button, parted by a line feed.
std::string dateButtonCaption(base::CivilDate readingDate);

bool isDrawn(Suit suit, const OracleState& state);

/// The text file of a suit's card, which becomes `currentCardNumber`; nothing when the suit has not been drawn.
std::optional<std::string> openSuitText(Suit suit, OracleState& state, std::string_view applicationDirectory);

/// The text file of the final card, likewise; nothing unless it is open.
std::optional<std::string> openFinalText(OracleState& state, std::string_view applicationDirectory);

} // namespace velmoriax::tarot
