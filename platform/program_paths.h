// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace velmoriax::platform {

/// The file-system form of a path as the program writes it: behind the application directory, which may hold any
/// character, backslashes separate. The name of the options file is spelled in small letters under any spelling.
std::string fileSystemPath(std::string_view programPath, std::string_view applicationDirectory);

/// False for the root of the file system: no subdirectory is appended to it, so that a program there finds its pictures
/// and texts beside itself.
bool takesSubdirectory(std::string_view applicationDirectory);

} // namespace velmoriax::platform
