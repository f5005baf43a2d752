// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velmoriax::platform {

/// The programs that the desktop starts at login.
class Autostart {
public:
    virtual ~Autostart() = default;

    /// Creates or rewrites the entry `name` so that it starts this program's executable. False when that fails.
    virtual bool write(const std::string& name) = 0;

    /// Deletes the entry. False when there is none or it cannot be deleted.
    virtual bool erase(const std::string& name) = 0;
};

} // namespace velmoriax::platform
