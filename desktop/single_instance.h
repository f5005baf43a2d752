// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

class QLockFile;

namespace velmoriax::desktop {

/// One running program an application directory, by a lock file that a dead process's lock does not block.
class SingleInstance {
public:
    explicit SingleInstance(const std::string& directory);
    ~SingleInstance();

    /// False when another instance runs. A directory that cannot be written to holds no lock, and the program runs.
    bool isFirst() const { return first_; }

private:
    std::unique_ptr<QLockFile> lock_;
    bool first_ = true;
};

} // namespace velmoriax::desktop
