// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

namespace velmoriax::desktop {

/// The user's folders by the XDG base directory rules: the variable when it holds an absolute path, else the default
/// below the home folder.
std::filesystem::path configHome(); ///< $XDG_CONFIG_HOME, ~/.config
std::filesystem::path dataHome();   ///< $XDG_DATA_HOME, ~/.local/share

} // namespace velmoriax::desktop
