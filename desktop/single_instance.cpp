// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/single_instance.h"

#include <QLockFile>

#include <cerrno>
#include <csignal>

namespace velmoriax::desktop {

namespace {

/// In a folder that cannot be written the lock of a dead process stays.
bool ownerLives(const QLockFile& lock) {
    qint64 process = 0;
    QString host, application;
    if (!lock.getLockInfo(&process, &host, &application)) return true;
    return ::kill(static_cast<::pid_t>(process), 0) == 0 || errno != ESRCH;
}

} // namespace

SingleInstance::SingleInstance(const std::string& directory) :
    lock_(std::make_unique<QLockFile>(QString::fromStdString(directory) + QStringLiteral("/.velmoriax.lock"))) {
    // Only the lock of a process that no longer exists is broken, however old the lock is.
    lock_->setStaleLockTime(0);
    if (!lock_->tryLock(0)) first_ = lock_->error() != QLockFile::LockFailedError || !ownerLives(*lock_);
}

SingleInstance::~SingleInstance() = default;

} // namespace velmoriax::desktop
