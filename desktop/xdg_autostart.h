// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/autostart.h"

#include <filesystem>

namespace velmoriax::desktop {

/// Entries in the user's autostart folder, by the XDG rules.
class XdgAutostart : public platform::Autostart {
public:
    /// `executable` is the path of the program that is started at login.
    explicit XdgAutostart(std::filesystem::path executable) : executable_(std::move(executable)) {}
    bool write(const std::string& name) override;
    bool erase(const std::string& name) override;

private:
    std::filesystem::path executable_;
};

/// A path as one argument of an Exec line, by the quoting rules of desktop entries.
std::string quotedExecArgument(const std::string& argument);

} // namespace velmoriax::desktop
