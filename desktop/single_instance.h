// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

class QLockFile;
class QString;

namespace velmoriax::desktop {

/// Allows one running program for each application directory, by a lock file in that directory, or, where it cannot be
/// written, in the user's runtime folder. The lock of a process that no longer exists does not count.
class SingleInstance {
public:
    explicit SingleInstance(const std::string& directory);
    ~SingleInstance();

    /// False when another instance holds the lock. True where there is no lock and none can be created.
    bool isFirst() const { return first_; }

private:
    enum class Outcome { locked, heldByOther, impossible };
    Outcome tryLock(const QString& path);

    std::unique_ptr<QLockFile> lock_;
    bool first_ = true;
};

} // namespace velmoriax::desktop
