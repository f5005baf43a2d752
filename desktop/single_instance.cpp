// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/single_instance.h"

#include <QCryptographicHash>
#include <QLockFile>
#include <QStandardPaths>

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

/// The lock for an application directory that cannot be written, named after the directory.
QString runtimeLock(const QString& directory) {
    const QByteArray name = QCryptographicHash::hash(directory.toUtf8(), QCryptographicHash::Sha1).toHex();
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + QStringLiteral("/velmoriax-") +
           QString::fromLatin1(name) + QStringLiteral(".lock");
}

} // namespace

SingleInstance::SingleInstance(const std::string& directory) {
    const QString folder = QString::fromStdString(directory);
    Outcome outcome = tryLock(folder + QStringLiteral("/.velmoriax.lock"));
    if (outcome == Outcome::impossible) outcome = tryLock(runtimeLock(folder));
    first_ = outcome != Outcome::heldByOther;
}

SingleInstance::Outcome SingleInstance::tryLock(const QString& path) {
    lock_ = std::make_unique<QLockFile>(path);
    // Only the lock of a process that no longer exists is broken, however old the lock is.
    lock_->setStaleLockTime(0);
    if (lock_->tryLock(0)) return Outcome::locked;
    const bool held = lock_->error() == QLockFile::LockFailedError && ownerLives(*lock_);
    return held ? Outcome::heldByOther : Outcome::impossible;
}

SingleInstance::~SingleInstance() = default;

} // namespace velmoriax::desktop
