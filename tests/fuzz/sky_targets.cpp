// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/date_text.h"
#include "base/windows1252.h"
#include "fuzz/targets.h"
#include "sky/ingress_search.h"
#include "sky/zodiac.h"
#include "sky/zodiac_tables.h"
#include "support/fakes.h"

namespace velmoriax::fuzz {

namespace {

void isSign(const sky::SignReading& reading, const sky::SkyState& state) {
    law(reading.index >= 0 && reading.index < 12, "one of twelve signs");
    law(reading.label == sky::signNames[static_cast<std::size_t>(reading.index)], "under its name");
    law(state.currentSignIndex == reading.index, "and the one whose description a click shows");
    law(!reading.picturePath.empty() && !reading.tip.empty(), "with its picture and dates");
    law(reading.alertVisible == !reading.changeText.empty(), "an alert has a moment");
}

} // namespace

/// moment | a table a sign, Aries first
void ingress(std::string_view input) {
    const base::DateValue moment = base::readDateTime(takePart(input)).value_or(46341.5);
    test::FakeFiles files;
    for (const std::string_view sign : sky::signFileNames) {
        if (input.empty()) break;
        files.at("\\fechas-db\\" + base::lowerWindows1252(sign) + ".txt") = takePart(input);
    }
    const auto stay = sky::findSignStay(files, moment);
    if (stay)
        law(!base::isBefore(moment, stay->start) && !base::isBefore(stay->end, moment), "a stay holds its moment");

    const test::FakeZone zone;
    sky::SkyState state;
    const sky::SignReading& today = sky::signoZod({files, zone}, moment, "Norte", state);
    isSign(today, state);
    if (stay) law(today.index == stay->index, "the window shows the sign that was found");
    sky::changeOfSignMessage(today, base::civilDateOf(moment), zone);
    const sky::SignReading& day = sky::signoZodCalendar(files, base::civilDateOf(moment), "Sur", state);
    isSign(day, state);
    sky::changeOfSignMessageCalendar(day, zone);
    law(sky::agent::tipsignzodiac({files, zone}, moment, state).starts_with("Zodiac Sign: " + today.label),
        "the tip names the same sign");
}

} // namespace velmoriax::fuzz
