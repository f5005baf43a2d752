// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/single_instance.h"

#include <QLockFile>

namespace velmoriax::desktop {

SingleInstance::SingleInstance(const std::string& directory) :
    lock_(std::make_unique<QLockFile>(QString::fromStdString(directory) + QStringLiteral("/.velmoriax.lock"))) {
    // Only the lock of a process that no longer exists is broken, however old the lock is.
    lock_->setStaleLockTime(0);
    if (!lock_->tryLock(0)) first_ = lock_->error() != QLockFile::LockFailedError;
}

SingleInstance::~SingleInstance() = default;

} // namespace velmoriax::desktop
