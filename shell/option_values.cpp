// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/option_values.h"

#include "shell/options.h"

#include <algorithm>

namespace velmoriax::shell {

const std::array<AlertLevel, 9> alertLevels{{
    {"zero", "None", "Ninguno"},
    {"solo", "Only actual situation", "Sólo situación actual"},
    {"bas1", "Basic (change of phase + actual s.)", "Básico (cambio de fase + s. actual)"},
    {"bas2", "Basic (critical days + actual s.)", "Básico (días críticos + s. actual)"},
    {"bas3", "Basic (Crossings between cycles + actual s.)", "Básico (cruces entre ciclos + s. actual)"},
    {"med1", "Medium (change of phase + critical  + actual s.)", "Medio (cambio fase + críticos  + s. actual)"},
    {"med2", "Medium (critical + Crossings + actual s.)", "Medio (críticos + cruces + s. actual)"},
    {"med3", "Medium (change of phase + Crossings + actual s.)", "Medio (cambio fase + cruces + s. actual)"},
    {"maxi", "Maximum (c. phase + critical + Crossings + actual s.)",
     "Máximo (c. fase + críticos + cruces + s. actual)"},
}};

namespace {

std::string codeOf(std::string_view caption, std::string_view AlertLevel::*column) {
    const auto* found = std::ranges::find(alertLevels, caption, column);
    return std::string(found == alertLevels.end() ? "maxi" : found->code);
}

constexpr std::array<std::string_view, 3> decks{word::marsellaone, word::marsellaclass, word::oldones};

} // namespace

std::string alertLevelOfCaption(std::string_view caption) {
    return codeOf(caption, &AlertLevel::caption);
}

std::string alertLevelOfSpanishCaption(std::string_view caption) {
    return codeOf(caption, &AlertLevel::spanishCaption);
}

std::string normalisedMinimize(std::string_view value) {
    return std::string(value.empty() || value == word::systray ? word::systray : word::toolbar);
}

std::string normalisedDeck(std::string_view value, std::string_view previous) {
    if (value.empty()) return std::string(decks.front());
    return std::string(std::ranges::count(decks, value) ? value : previous);
}

std::string orDefault(std::string_view value, std::string_view standard) {
    return std::string(value.empty() ? standard : value);
}

} // namespace velmoriax::shell
