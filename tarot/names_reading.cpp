// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/names_reading.h"

#include "tarot/letter_values.h"

namespace velmoriax::tarot {

std::optional<int> sumaNombres(std::string_view nombre) {
    if (nombre.find_first_of("0123456789") != nombre.npos) return std::nullopt;
    return letterSum(nombre);
}

NamesReading readNames(const NameFields& fields, const Deck& deck, CardState& state) {
    NamesReading reading;
    int total = 0;
    for (const std::string& field : fields) {
        const auto fieldValue = sumaNombres(field);
        total += fieldValue.value_or(0);
        if (!fieldValue) ++reading.refusedFields;
    }
    if (total == 0) return reading;
    reading.drawn = drawnMajor(total, deck, state);
    reading.record = {fields, reading.drawn->pictureFile};
    return reading;
}

} // namespace velmoriax::tarot
