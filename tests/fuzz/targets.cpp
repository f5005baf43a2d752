// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/targets.h"

#include <algorithm>
#include <array>

namespace velmoriax::fuzz {

namespace {

constexpr std::array<Target, 10> table{{
    {"dates", dates},
    {"numbers", numbers},
    {"western", western},
    {"profile_text", profileText},
    {"options", options},
    {"position", position},
    {"dat_files", datFiles},
    {"profile_list", profileList},
    {"profile_rewrite", profileRewrite},
    {"ingress", ingress},
}};

} // namespace

std::span<const Target> targets() {
    return table;
}

std::string_view takePart(std::string_view& input) {
    const std::size_t end = std::min(input.find('|'), input.size());
    const std::string_view part = input.substr(0, end);
    input.remove_prefix(std::min(end + 1, input.size()));
    return part;
}

} // namespace velmoriax::fuzz
