// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/run_time_error.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>
#include <tuple>
#include <vector>

namespace velmoriax::test {

/// The rows of a test. Their columns get names where they are read: for (const auto& [text, sum, why] : rows).
template<typename... Columns>
using Table = std::vector<std::tuple<Columns...>>;

/// The error that would end the program in a run; nothing when there is none.
template<typename Run>
std::optional<base::RunTimeError> errorOf(Run run) {
    try {
        run();
    } catch (const base::RunTimeError& error) {
        return error;
    }
    return std::nullopt;
}

/// Its number alone.
template<typename Run>
std::optional<base::RunTimeError::Code> codeOf(Run run) {
    const auto error = errorOf(run);
    return error ? std::optional(error->code()) : std::nullopt;
}

inline std::string bytesOf(const std::filesystem::path& path) {
    std::ostringstream all;
    all << std::ifstream(path, std::ios::binary).rdbuf();
    return all.str();
}

} // namespace velmoriax::test
