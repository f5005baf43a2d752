// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/xdg_folders.h"

#include <cstdlib>

namespace velmoriax::desktop {

namespace {

std::filesystem::path folder(const char* variable, const char* belowHome) {
    const char* configured = std::getenv(variable);
    if (configured && std::filesystem::path(configured).is_absolute()) return configured;
    const char* home = std::getenv("HOME");
    return std::filesystem::path(home && *home ? home : "/") / belowHome;
}

} // namespace

std::filesystem::path configHome() {
    return folder("XDG_CONFIG_HOME", ".config");
}

std::filesystem::path dataHome() {
    return folder("XDG_DATA_HOME", ".local/share");
}

} // namespace velmoriax::desktop
