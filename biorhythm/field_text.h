// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>
#include <vector>

namespace velmoriax::biorhythm {

/// The fields between separators, empty ones included; at least one.
std::vector<std::string_view> fieldsOf(std::string_view text, char separator);

/// The field at a place counted from 0, empty where there is none.
std::string_view fieldAt(const std::vector<std::string_view>& fields, std::size_t place);

} // namespace velmoriax::biorhythm
