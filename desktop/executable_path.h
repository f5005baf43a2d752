// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

namespace velmoriax::desktop {

/// The executable of this process, in the bytes of the file system: the name of a folder need not be UTF-8.
std::filesystem::path executablePath();

} // namespace velmoriax::desktop
