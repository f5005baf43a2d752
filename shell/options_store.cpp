// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/options_store.h"

#include "base/windows1252.h"
#include "shell/option_values.h"
#include "shell/profile_text.h"

namespace velmoriax::shell {

namespace {

/// The platform's buffer of 255 characters, one of them the end mark.
constexpr std::size_t longestValue = 254;

using Status = platform::Files::Status;

} // namespace

std::string OptionsStore::fileName() const {
    return files_.applicationDirectory() + "\\opciones.ini";
}

std::string OptionsStore::readProfileString(std::string_view lpAppName, std::string_view lpKeyName,
                                            const std::string& lpFileName) const {
    const auto content = files_.read(lpFileName);
    if (content.status != Status::read) return {};
    const std::string value =
        profileValue(content.bytes, base::toWindows1252(lpAppName), base::toWindows1252(lpKeyName));
    return base::fromWindows1252(value.substr(0, longestValue));
}

int OptionsStore::writeProfileString(std::string_view lpAppName, std::string_view lpKeyName, std::string_view lpString,
                                     const std::string& lpFileName) {
    const auto content = files_.read(lpFileName);
    if (content.status == Status::unreadable) return 0;
    const std::string changed = withProfileValue(content.bytes, base::toWindows1252(lpAppName),
                                                 base::toWindows1252(lpKeyName), base::toWindows1252(lpString));
    return files_.replace(lpFileName, changed) ? 1 : 0;
}

std::string OptionsStore::option(std::string_view key) const {
    return readProfileString(optionsSection, key, fileName());
}

void OptionsStore::setOption(std::string_view key, std::string_view value) {
    writeProfileString(optionsSection, key, value, fileName());
}

void OptionsStore::readAtStart() {
    holders.alertLevel = alertLevelOfCaption(leerNivelAlertas());
    holders.minimizeTo = normalisedMinimize(leerMinimizar());
    holders.tipocartas = normalisedDeck(leerTipocartas(), holders.tipocartas);
}

void OptionsStore::readRows(std::span<const OptionRow> rows) {
    for (const OptionRow& row : rows) {
        std::string& holder = holders.*row.holder;
        readInto(holder, row.key);
        const bool refused = !row.other.empty() && holder != row.other;
        if (holder.empty() || refused) holder = row.standard;
    }
}

const std::string& OptionsStore::readInto(std::string& holder, std::string_view key) {
    holder = option(key);
    return holder;
}

} // namespace velmoriax::shell
