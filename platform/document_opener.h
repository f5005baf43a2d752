// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velmoriax::platform {

class DocumentOpener {
public:
    virtual ~DocumentOpener() = default;

    /// Hands a file of the program or an address to what the desktop associates with it. When nothing does, or the file
    /// is missing, nothing happens and false comes back.
    virtual bool open(const std::string& target) = 0;
};

} // namespace velmoriax::platform
