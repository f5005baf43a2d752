// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/numbers_reading.h"

#include "base/number_text.h"
#include "base/rounding.h"
#include "base/run_time_error.h"
#include "tarot/numeric_text.h"

namespace velmoriax::tarot {

namespace {

[[noreturn]] void refuseWithoutCard(std::string_view numero) {
    throw base::RunTimeError(base::RunTimeError::Code::subscriptOutOfRange,
                             "The digits of \"" + std::string(numero) + "\" add up to 0, and there is no card 0.");
}

} // namespace

std::string resultLineOf(const MajorCard& card) {
    return "It has corresponded... " + std::string(card.numbersCardNames);
}

std::optional<NumbersReading> SumarUnidades(std::string_view numero, const Deck& deck, CardState& state) {
    if (!isNumericText(numero)) return std::nullopt;
    NumbersReading reading;
    reading.digitSum = base::toInt16(base::digitSum(numero));
    if (reading.digitSum == 0) refuseWithoutCard(numero);
    reading.drawn = drawnMajor(reading.digitSum, deck, state);
    reading.resultLine = resultLineOf(majorCard(reading.drawn.card));
    reading.record = {std::string(numero), reading.drawn.pictureFile};
    return reading;
}

} // namespace velmoriax::tarot
