// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velmoriax::platform {

/// Opens documents and addresses in the programs of the desktop.
class DocumentOpener {
public:
    virtual ~DocumentOpener() = default;

    /// Opens a file of the program or an address in the program that the desktop associates with it. False when there
    /// is none or the file is missing.
    virtual bool open(const std::string& target) = 0;
};

} // namespace velmoriax::platform
