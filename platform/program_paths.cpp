// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/program_paths.h"

#include "base/windows1252.h"

#include <algorithm>

namespace velmoriax::platform {

namespace {

constexpr std::string_view optionsFile = "/opciones.ini";

} // namespace

std::string fileSystemPath(std::string_view programPath, std::string_view applicationDirectory) {
    if (!programPath.starts_with(applicationDirectory)) return std::string(programPath);
    std::string inside(programPath.substr(applicationDirectory.size()));
    std::ranges::replace(inside, '\\', '/');
    if (base::lowerWindows1252(inside) == optionsFile) inside = optionsFile;
    const bool isRoot = applicationDirectory == "/";
    if (isRoot) return inside.starts_with('/') ? inside : "/" + inside;
    return std::string(applicationDirectory) + inside;
}

bool takesSubdirectory(std::string_view applicationDirectory) {
    return applicationDirectory != "/";
}

} // namespace velmoriax::platform
