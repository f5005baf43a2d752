// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "desktop/disk_files.h"
#include "platform/autostart.h"
#include "platform/document_opener.h"
#include "platform/message_boxes.h"
#include "platform/pending_events.h"

#include <filesystem>

namespace velmoriax::desktop {

class QtMessageBoxes : public platform::MessageBoxes {
public:
    void show(platform::BoxIcon icon, const std::string& text, const std::string& title) override;
    bool askYesNo(const std::string& text, const std::string& title) override;
    std::optional<std::string> askText(const std::string& prompt, const std::string& title) override;
    std::optional<std::string> askFile(const std::string& title, const std::string& directory,
                                       const std::string& filter) override;
};

/// Opens what the desktop associates with a file or an address.
class QtDocumentOpener : public platform::DocumentOpener {
public:
    explicit QtDocumentOpener(const DiskFiles& files) : files_(files) {}
    bool open(const std::string& target) override;

private:
    const DiskFiles& files_;
};

class QtPendingEvents : public platform::PendingEvents {
public:
    void processEvents() override;
    bool isProcessing() const override;

private:
    int depth_ = 0;
};

/// Entries in the user's autostart folder, by the XDG rules.
class XdgAutostart : public platform::Autostart {
public:
    /// `executable` is the path that a login shall start.
    explicit XdgAutostart(std::filesystem::path executable) : executable_(std::move(executable)) {}
    bool write(const std::string& name) override;
    bool erase(const std::string& name) override;

private:
    std::filesystem::path executable_;
};

/// A path as one argument of an Exec line, by the quoting rules of desktop entries.
std::string quotedExecArgument(const std::string& argument);

} // namespace velmoriax::desktop
