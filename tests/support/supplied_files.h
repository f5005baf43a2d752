// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/helpers.h"

#include <filesystem>
#include <map>
#include <string>

namespace velmoriax::test {

/// The supplied data by their paths below a directory. Each picture is a single pixel, so that many tests can have
/// them.
inline std::map<std::string, std::string> suppliedFiles(const std::string& directory) {
    namespace fs = std::filesystem;
    static const std::map<std::string, std::string> read = [] {
        const std::string pixel("GIF89a\x01\0\x01\0\x80\0\0\0\0\0\xff\xff\xff,\0\0\0\0\x01\0\x01\0\0\x02\x02"
                                "D\x01\0;",
                                35);
        const fs::path data = VELMORIAX_DATA_DIR;
        std::map<std::string, std::string> files;
        for (const auto& entry : fs::recursive_directory_iterator(data)) {
            if (!entry.is_regular_file()) continue;
            const std::string ending = entry.path().extension();
            const bool isPicture = ending == ".jpg" || ending == ".gif" || ending == ".png";
            files[entry.path().lexically_relative(data).string()] = isPicture ? pixel : bytesOf(entry.path());
        }
        return files;
    }();
    std::map<std::string, std::string> files;
    for (const auto& [name, bytes] : read) files[directory + "/" + name] = bytes;
    return files;
}

} // namespace velmoriax::test
