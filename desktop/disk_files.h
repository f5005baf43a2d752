// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/files.h"

#include <filesystem>

namespace velmoriax::desktop {

/// The folders with the program's files.
struct ProgramFolders {
    std::filesystem::path user;     ///< the application directory: options, profiles, logs, and what the user adds
    std::filesystem::path supplied; ///< the supplied data; the same folder when the program is portable
};

/// Portable, when the executable's own folder holds the pictures: that folder for both. Installed: the user's data
/// folder, by the XDG rules (a relative $XDG_DATA_HOME is ignored), and the shared data folder of the installation.
ProgramFolders programFolders(const std::filesystem::path& executable);

/// Files on the disk. What is written is written whole beside the old file, flushed and renamed over it.
class DiskFiles : public platform::Files {
public:
    explicit DiskFiles(ProgramFolders folders);

    const ProgramFolders& folders() const { return folders_; }

    /// Creates the application directory, for the user alone.
    void createApplicationDirectory();

    /// Creates the folder of the logs, and deletes the half-written files, at least a minute old, that a killed or
    /// crashed process has left there and in the application directory.
    void prepareFolders();

    /// The path under which a program path is read: the user's file, or the supplied one when the user has none.
    std::filesystem::path readPath(const std::string& path) const;

    std::string applicationDirectory() const override;
    Content read(const std::string& path) const override;
    bool exists(const std::string& path) const override;
    bool replace(const std::string& path, const std::string& bytes) override;
    bool append(const std::string& path, const std::string& bytes) override;
    bool remove(const std::string& path) override;
    bool rename(const std::string& from, const std::string& to) override;
    std::optional<std::string> temporaryFolder() const override;
    std::optional<std::string> createTemporaryFile(const std::string& folder, const std::string& prefix) override;

private:
    std::filesystem::path native(const std::string& path) const;

    ProgramFolders folders_;
};

} // namespace velmoriax::desktop
