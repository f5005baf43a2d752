// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/single_instance.h"

#include <QLockFile>

namespace velmoriax::desktop {

SingleInstance::SingleInstance(const std::string& directory) :
    lock_(std::make_unique<QLockFile>(QString::fromStdString(directory) + QStringLiteral("/.velmoriax.lock"))) {
    // The lock's owner is asked for by its process number: only a dead one's lock is broken, never an old one's.
    lock_->setStaleLockTime(0);
    if (!lock_->tryLock(0)) first_ = lock_->error() != QLockFile::LockFailedError;
}

SingleInstance::~SingleInstance() = default;

} // namespace velmoriax::desktop
