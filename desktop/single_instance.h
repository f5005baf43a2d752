// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

class QLockFile;

namespace velmoriax::desktop {

/// Allows one running program for each application directory, by a lock file. The lock of a process that no longer
/// exists does not count.
class SingleInstance {
public:
    explicit SingleInstance(const std::string& directory);
    ~SingleInstance();

    /// False when another instance holds the lock. True where there is no lock and none can be created.
    bool isFirst() const { return first_; }

private:
    std::unique_ptr<QLockFile> lock_;
    bool first_ = true;
};

} // namespace velmoriax::desktop
