// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace velmoriax::test {

inline std::string bytesOf(const std::filesystem::path& path) {
    std::ostringstream all;
    all << std::ifstream(path, std::ios::binary).rdbuf();
    return all.str();
}

} // namespace velmoriax::test
