// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/card_catalogue.h"

#include "base/run_time_error.h"
#include "platform/program_paths.h"
#include "shell/options.h"

#include <algorithm>

namespace velmoriax::tarot {

const std::array<MajorCard, majorCards> majorArcana{{
    {"I. The Magician", "I. The Magician", "mago1.jpg", "mago1.txt"},
    {"II. The High Priestess", "II. The Priestess", "sacerdotisa2.jpg", "sacerdotisa2.txt"},
    {"III. The Empress", "III. The Empress", "emperatriz3.jpg", "emperatriz3.txt"},
    {"IV. The Emperor", "IV. The Emperor", "emperador4.jpg", "emperador4.txt"},
    {"V. The Hierophant", "V. The Pope", "sacerdote5.jpg", "sacerdote5.txt"},
    {"VI. The Lovers", "VI. The Lovers", "amantes6.jpg", "enamorados6.txt"},
    {"VII. The Chariot", "VII. The Chariot", "carro7.jpg", "carro7.txt"},
    {"VIII. Justice", "VIII. The Justice", "justicia8.jpg", "justicia8.txt"},
    {"IX. The Hermit", "IX. The Hermit", "ermitaño9.jpg", "ermitaño9.txt"},
    {"X. Wheel of Fortune", "X. The Fortune", "fortuna10.jpg", "fortuna10.txt"},
    {"XI. Strength", "XI. The Force", "fuerza11.jpg", "fuerza11.txt"},
    {"XII. The Hanged Man", "XII. The Hanged", "colgado12.jpg", "colgado12.txt"},
    {"XIII. Death", "XIII. The Death", "muerte13.jpg", "muerte13.txt"},
    {"XIV. Temperance", "XIV. The Temperance", "templanza14.jpg", "templanza14.txt"},
    {"XV. The Devil", "XV. The Devil", "diablo15.jpg", "diablo15.txt"},
    {"XVI. The Tower", "XVI. The Tower", "torre16.jpg", "torre16.txt"},
    {"XVII. The Star", "XVII. The Star", "estrella17.jpg", "estrella17.txt"},
    {"XVIII. The Moon", "XVIII. The Moon", "luna18.jpg", "luna18.txt"},
    {"XIX. The Sun", "XIX. The Sun", "sol19.jpg", "sol19.txt"},
    {"XX. Judgment", "XX. The Trial", "juicio20.jpg", "juicio20.txt"},
    {"XXI. The Fool", "XXI. The Fool", "loco21.jpg", "loco21.txt"},
    {"XXII. The World", "XXII. The World", "mundo22.jpg", "mundo22.txt"},
}};

const std::array<SuitWords, 4> suits{{
    {"bastos", "Question for the batons: "},
    {"copas", "Question for the cups: "},
    {"espadas", "Question for the swords: "},
    {"oros", "Question for the golds: "},
}};

namespace {

constexpr std::array<std::string_view, 4> courtStems{"sota-", "caballo-", "reina-", "rey-"};

struct DeckDirectory {
    std::string_view deck;
    std::string_view directory;
};
constexpr std::array<DeckDirectory, 3> deckDirectories{{
    {shell::word::marsellaone, "\\imagenes\\"},
    {shell::word::marsellaclass, "\\imagenes2\\"},
    {shell::word::oldones, "\\imagenes3\\"},
}};

[[noreturn]] void outsideTheTables(int number) {
    throw base::RunTimeError(base::RunTimeError::Code::subscriptOutOfRange,
                             "There is no card with the number " + std::to_string(number) + ".");
}

std::string minorStem(Suit suit, int index) {
    if (index < 1 || index > suitCards) outsideTheTables(index);
    constexpr int numbered = 10;
    const std::string word(suits[static_cast<std::size_t>(suit)].stem);
    if (index <= numbered) return std::to_string(index) + word;
    return std::string(courtStems[static_cast<std::size_t>(index - numbered - 1)]) + word;
}

std::string below(std::string_view applicationDirectory, std::string_view subdirectory) {
    std::string directory(applicationDirectory);
    return platform::takesSubdirectory(directory) ? directory.append(subdirectory) : directory;
}

int reducedBy(int number, int size) {
    while (number > size) number -= size;
    return number;
}

} // namespace

const MajorCard& majorCard(int number) {
    if (number < 1 || number > majorCards) outsideTheTables(number);
    return majorArcana[static_cast<std::size_t>(number - 1)];
}

std::string majorPictureFile(int card) {
    return std::string(majorCard(card).pictureFile);
}

std::string majorPictureDir(const Deck& deck) {
    const auto* row = std::ranges::find(deckDirectories, deck.tipocartas, &DeckDirectory::deck);
    return below(deck.applicationDirectory, row == deckDirectories.end() ? std::string_view{} : row->directory);
}

std::string majorTextFile(int card) {
    return std::string(majorCard(card).textFile);
}

std::string minorPictureFile(Suit suit, int index) {
    return minorStem(suit, index) + ".jpg";
}

std::string minorTextFile(Suit suit, int index) {
    return minorStem(suit, index) + ".txt";
}

std::string minorPictureDir(std::string_view applicationDirectory) {
    return below(applicationDirectory, "\\amenores\\");
}

std::string majorTextDir(std::string_view applicationDirectory) {
    return below(applicationDirectory, "\\textos\\");
}

std::string minorTextDir(std::string_view applicationDirectory) {
    return below(applicationDirectory, "\\mtextos\\");
}

std::string suitBackPath(std::string_view applicationDirectory) {
    return std::string(applicationDirectory) + "\\amenores\\reverso.jpg";
}

std::string majorBackPath(std::string_view applicationDirectory) {
    return std::string(applicationDirectory) + "\\amenores\\reverso2.jpg";
}

void fillCardTipName(CardState& state) {
    if (state.currentCard < 1 || state.currentCard > majorCards) return;
    const auto index = static_cast<std::size_t>(state.currentCard - 1);
    state.cardTipNames[index] = majorArcana[index].tipName;
}

int reducedToMajor(int card) {
    return reducedBy(card, majorCards);
}

int reducedToMinor(int card) {
    return reducedBy(card, suitCards);
}

} // namespace velmoriax::tarot
