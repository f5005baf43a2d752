// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

namespace velmoriax::platform {

/// The files of the program, by the paths that the program writes: the application directory followed by a literal with
/// backslashes, such as applicationDirectory() + "\\logs\\resNames.log". The implementation maps them to the file
/// system, reads a supplied file from the shared data folder when the user has none of his own, and writes for the user
/// alone. The options file is one file under any spelling of its name. Contents are bytes.
class Files {
public:
    virtual ~Files() = default;

    enum class Status {
        read,
        missing,
        unreadable, ///< it exists and cannot be read: a directory, no permission, a failing disk
    };
    struct Content {
        Status status = Status::missing;
        std::string bytes;
    };

    /// The program's own directory, without a separator at its end unless it is the root.
    virtual std::string applicationDirectory() const = 0;

    virtual Content read(const std::string& path) const = 0;
    virtual bool exists(const std::string& path) const = 0;

    /// Replaces the whole file. On failure (false) the old content is kept.
    virtual bool replace(const std::string& path, const std::string& bytes) = 0;

    /// Adds to the end of a file, creating the file but not its directory. On failure (false) the old content is kept.
    virtual bool append(const std::string& path, const std::string& bytes) = 0;

    /// Deletes a file. False when there is none or it cannot be deleted.
    virtual bool remove(const std::string& path) = 0;

    /// Renames `from` to `to`, replacing a file of that name, across file systems as well. On failure (false) the file
    /// `to` is unchanged.
    virtual bool rename(const std::string& from, const std::string& to) = 0;

    /// The folder for temporary files; nothing when there is none.
    virtual std::optional<std::string> temporaryFolder() const = 0;

    /// Creates an empty file in that folder, whose name begins with `prefix`, and returns its path; nothing on failure.
    virtual std::optional<std::string> createTemporaryFile(const std::string& folder, const std::string& prefix) = 0;
};

} // namespace velmoriax::platform
