// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/window_position.h"

#include "base/number_text.h"
#include "base/rounding.h"

#include <algorithm>
#include <array>
#include <utility>

namespace velmoriax::shell {

namespace {

constexpr std::array<std::pair<std::string_view, int WindowPlace::*>, 4> fields{{
    {key::positionLeft, &WindowPlace::left},
    {key::positionTop, &WindowPlace::top},
    {key::positionWidth, &WindowPlace::width},
    {key::positionHeight, &WindowPlace::height},
}};

int placeValue(const std::string& text) {
    constexpr double largest = 2147483647.0;
    return base::nearestInt32(std::clamp(base::leadingNumber(text), -largest, largest));
}

} // namespace

std::optional<WindowPlace> storedPlace(const OptionsStore& options) {
    WindowPlace place;
    for (const auto& [name, field] : fields)
        place.*field = placeValue(options.readProfileString(positionSection, name, options.fileName()));
    return place == WindowPlace{} ? std::nullopt : std::optional(place);
}

void storePlace(OptionsStore& options, const WindowPlace& place) {
    for (const auto& [name, field] : fields)
        options.writeProfileString(positionSection, name, base::plainNumberText(static_cast<float>(place.*field)),
                                   options.fileName());
}

} // namespace velmoriax::shell
