// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "desktop/disk_files.h"
#include "platform/document_opener.h"

namespace velmoriax::desktop {

/// Opens what the desktop associates with a file or an address.
class QtDocumentOpener : public platform::DocumentOpener {
public:
    explicit QtDocumentOpener(const DiskFiles& files) : files_(files) {}
    bool open(const std::string& target) override;

private:
    const DiskFiles& files_;
};

} // namespace velmoriax::desktop
