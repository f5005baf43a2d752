// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/field_text.h"

namespace velmoriax::biorhythm {

std::vector<std::string_view> fieldsOf(std::string_view text, char separator) {
    std::vector<std::string_view> fields;
    for (std::size_t end = text.find(separator); end != std::string_view::npos; end = text.find(separator)) {
        fields.push_back(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    fields.push_back(text);
    return fields;
}

std::string_view fieldAt(const std::vector<std::string_view>& fields, std::size_t place) {
    return place < fields.size() ? fields[place] : std::string_view{};
}

} // namespace velmoriax::biorhythm
