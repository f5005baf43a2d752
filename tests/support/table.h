// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <tuple>
#include <vector>

namespace velmoriax::test {

/// The rows of a test. Their columns get names where they are read: for (const auto& [text, sum, why] : rows).
template<typename... Columns>
using Table = std::vector<std::tuple<Columns...>>;

} // namespace velmoriax::test
