// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velmoriax::platform {

/// The desktop's list of programs that start at login. Results are not looked at by the program.
class Autostart {
public:
    virtual ~Autostart() = default;

    /// Creates or rewrites the entry `name` so that it starts this program's executable.
    virtual bool write(const std::string& name) = 0;

    virtual bool erase(const std::string& name) = 0;
};

} // namespace velmoriax::platform
