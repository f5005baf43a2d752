// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace velmoriax::platform {

/// The file-system form of a path as the program writes it: behind the application directory, which may hold any
/// character, backslashes separate. The name of the options file is spelled in small letters under any spelling.
std::string fileSystemPath(std::string_view programPath, std::string_view applicationDirectory);

/// True for a directory text of more than 3 characters: only then is a subdirectory appended to it, so that a program
/// in the root of a drive finds its pictures and texts beside itself.
bool takesSubdirectory(std::string_view applicationDirectory);

} // namespace velmoriax::platform
