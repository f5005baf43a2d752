// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/windows1252.h"
#include "fuzz/targets.h"
#include "shell/option_values.h"
#include "shell/options_store.h"
#include "shell/profile_text.h"
#include "shell/window_position.h"
#include "support/fakes.h"

#include <algorithm>

namespace velmoriax::fuzz {

namespace {

constexpr std::string_view lineEnds("\r\n\0", 3);
constexpr std::string_view blanks(" \t");

bool holdsAny(std::string_view text, std::string_view characters) {
    return text.find_first_of(characters) != text.npos;
}

/// A name that the program could use: some characters have a meaning in the format itself.
bool isName(std::string_view name) {
    return !name.empty() && !holdsAny(name, "[]=;\r\n") && !holdsAny(name.substr(0, 1), blanks) &&
           !holdsAny(name.substr(name.size() - 1), blanks);
}

/// A value that the format returns as it is.
bool isPlainValue(std::string_view value) {
    const auto ends = [&](char end) { return value.starts_with(end) || value.ends_with(end); };
    return !holdsAny(value, lineEnds) && !ends(' ') && !ends('\t') && !ends('"') && !ends('\'');
}

/// What differs between a file and the one written from it.
struct Change {
    std::string_view removed;
    std::string_view added;
};

Change changeBetween(std::string_view before, std::string_view after) {
    const auto [b, a] = std::ranges::mismatch(before, after);
    before.remove_prefix(static_cast<std::size_t>(b - before.begin()));
    after.remove_prefix(static_cast<std::size_t>(a - after.begin()));
    while (!before.empty() && !after.empty() && before.back() == after.back()) {
        before.remove_suffix(1);
        after.remove_suffix(1);
    }
    return {before, after};
}

void othersStay(std::string_view before, std::string_view after, std::string_view changedKey) {
    for (const std::string_view key : {"a", "Minimizar", "tipocartas", "Tirada"}) {
        if (base::lowerWindows1252(key) == base::lowerWindows1252(changedKey)) continue;
        for (const std::string_view section : {"s", "opciones"})
            law(shell::profileValue(before, section, key) == shell::profileValue(after, section, key),
                "the other keys read as before");
    }
}

} // namespace

/// section | key | value | file
void profileText(std::string_view input) {
    const std::string_view section = takePart(input);
    const std::string_view key = takePart(input);
    const std::string_view value = takePart(input);
    shell::profileValue(input, section, key);
    const std::string written = shell::withProfileValue(input, section, key, value);
    if (!isName(section) || !isName(key)) return;
    const std::string read = shell::profileValue(written, section, key);
    if (isPlainValue(value)) law(read == value, "a value comes back");
    law(!holdsAny(read, lineEnds), "a value is one line");
    law(shell::withProfileValue(written, section, key, value) == written, "writing again changes nothing");
    const auto [removed, added] = changeBetween(input, written);
    law(!holdsAny(removed, "\n"), "one line changes and no other");
    law(removed.empty() || !holdsAny(added, "\n"), "a line is changed in place");
    othersStay(input, written, key);
}

/// value | options file
void options(std::string_view input) {
    const std::string value(takePart(input));
    test::FakeFiles files;
    files.at("\\opciones.ini") = input;
    shell::OptionsStore store(files);
    store.readAtStart();
    store.readAtModuleLoad();
    store.readAtCardOfDayLoad();
    const shell::OptionHolders& read = store.holders;
    law(std::ranges::count(shell::alertLevels, read.alertLevel, &shell::AlertLevel::code) == 1, "a known level");
    law(read.minimizeTo == "systray" || read.minimizeTo == "toolbar", "a known place to minimise to");
    law(base::toWindows1252(read.nivelAlertas).size() <= 254, "254 characters at most");
    store.setOption(shell::key::songAmbient, value);
    store.writeProfileString(shell::optionsSection, shell::key::soundAmbient, value,
                             files.applicationDirectory() + "\\Opciones.ini");
    law(files.contents.size() == 1, "one file under both spellings");
    const std::string bytes = base::toWindows1252(value);
    if (isPlainValue(bytes)) {
        law(store.option(shell::key::songAmbient) == base::fromWindows1252(bytes.substr(0, 254)), "a value comes back");
        law(store.option(shell::key::soundAmbient) == store.option(shell::key::songAmbient), "under both keys");
    }
    const std::string level = read.alertLevel;
    store.readAtStart();
    law(store.holders.alertLevel == level, "another key's write leaves the level");
}

/// left | top | width | height, as the options file has them
void position(std::string_view input) {
    test::FakeFiles files;
    shell::OptionsStore store(files);
    for (const auto key :
         {shell::key::positionLeft, shell::key::positionTop, shell::key::positionWidth, shell::key::positionHeight})
        store.writeProfileString(shell::positionSection, key, takePart(input), store.fileName());
    const auto place = shell::storedPlace(store);
    if (!place) return;
    shell::storePlace(store, *place);
    const auto again = shell::storedPlace(store);
    law(again.has_value(), "a stored place is a place");
    const auto isNear = [](int a, int b) { return std::abs(static_cast<double>(a) - b) <= std::abs(a) * 1e-7; };
    law(isNear(place->left, again->left) && isNear(place->height, again->height), "to the seven digits of 32 bits");
    const std::string file = files.at("\\opciones.ini");
    shell::storePlace(store, *again);
    law(files.at("\\opciones.ini") == file, "storing what was read changes nothing");
}

} // namespace velmoriax::fuzz
