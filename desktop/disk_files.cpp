// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/disk_files.h"

#include "desktop/xdg_folders.h"
#include "platform/program_paths.h"

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace velmoriax::desktop {

namespace fs = std::filesystem;

namespace {

constexpr ::mode_t ownerOnly = 0600;

/// The name of a file while it is being written, beside the one that it will replace.
constexpr std::string_view freshPrefix = ".velmoriax-";
constexpr std::string_view freshMark = "XXXXXX"; ///< the system replaces it by letters and digits
constexpr auto oldEnoughToSweep = std::chrono::minutes(1);

/// An open file descriptor, closed at the end of its scope.
class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() {
        if (number_ >= 0) ::close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    int number() const { return number_; }
    explicit operator bool() const { return number_ >= 0; }

private:
    int number_;
};

bool writeAll(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const ::ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

std::optional<std::string> readAll(int descriptor) {
    std::string bytes;
    std::string buffer(std::size_t{64} * 1024, '\0');
    while (true) {
        const ::ssize_t count = ::read(descriptor, buffer.data(), buffer.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return std::nullopt;
        if (count == 0) return bytes;
        bytes.append(buffer, 0, static_cast<std::size_t>(count));
    }
}

void flushFolder(const fs::path& folder) {
    const Descriptor directory(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (directory) ::fsync(directory.number());
}

/// A file that the user has made read-only stays as it is, though its folder would let it be renamed over.
bool isWriteProtected(const fs::path& target) {
    return ::access(target.c_str(), F_OK) == 0 && ::access(target.c_str(), W_OK) != 0;
}

/// The file behind a symbolic link, so that a link to a file elsewhere is kept.
fs::path behindLinks(const fs::path& path) {
    std::error_code error;
    const fs::path resolved = fs::canonical(path, error);
    return error ? path : resolved;
}

/// Writes bytes under a new name in a folder and returns the name; empty on failure, with nothing left behind.
fs::path writtenBeside(const fs::path& target, std::string_view bytes) {
    std::string name = (target.parent_path() / freshPrefix).string().append(freshMark);
    const Descriptor file(::mkostemp(name.data(), O_CLOEXEC));
    if (!file) return {};
    struct ::stat old {};
    if (::stat(target.c_str(), &old) == 0) ::fchmod(file.number(), old.st_mode & 07777);
    if (writeAll(file.number(), bytes) && ::fsync(file.number()) == 0) return name;
    ::unlink(name.c_str());
    return {};
}

bool replaceFile(const fs::path& path, std::string_view bytes) {
    const fs::path target = behindLinks(path);
    if (isWriteProtected(target)) return false;
    const fs::path fresh = writtenBeside(target, bytes);
    if (fresh.empty()) return false;
    if (::rename(fresh.c_str(), target.c_str()) != 0) {
        ::unlink(fresh.c_str());
        return false;
    }
    flushFolder(target.parent_path());
    return true;
}

/// Whether a process left this file when it was killed while writing.
bool isLeftover(const fs::directory_entry& entry) {
    std::error_code error;
    const std::string name = entry.path().filename().string();
    const bool named = name.starts_with(freshPrefix) && name.size() == freshPrefix.size() + freshMark.size();
    if (!named || entry.is_symlink(error) || !entry.is_regular_file(error)) return false;
    const auto written = entry.last_write_time(error);
    return !error && fs::file_time_type::clock::now() - written > oldEnoughToSweep;
}

/// Deletes only older files, since another instance may be writing at this moment.
void sweepLeftovers(const fs::path& folder) {
    std::error_code error;
    std::vector<fs::path> leftovers;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error))
        if (isLeftover(*entry)) leftovers.push_back(entry->path());
    for (const fs::path& leftover : leftovers) ::unlink(leftover.c_str());
}

platform::Files::Content readFile(const fs::path& path) {
    using Status = platform::Files::Status;
    // Opened without waiting, so that a pipe of that name cannot block the program.
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!file) return {errno == ENOENT || errno == ENOTDIR ? Status::missing : Status::unreadable, {}};
    struct ::stat status {};
    if (::fstat(file.number(), &status) != 0 || !S_ISREG(status.st_mode)) return {Status::unreadable, {}};
    auto bytes = readAll(file.number());
    if (!bytes) return {Status::unreadable, {}};
    return {Status::read, std::move(*bytes)};
}

} // namespace

ProgramFolders programFolders(const fs::path& executable) {
    std::error_code error;
    const fs::path resolved = fs::canonical(executable, error);
    const fs::path own = (error ? executable : resolved).parent_path();
    if (fs::is_directory(own / "imagenes", error)) return {own, own};
    // The executable is <prefix>/lib/velmoriax/Velmoriax, the supplied data <prefix>/share/velmoriax.
    const fs::path shared = own.parent_path().parent_path() / "share" / "velmoriax";
    return {dataHome() / "velmoriax", shared};
}

DiskFiles::DiskFiles(ProgramFolders folders) : folders_(std::move(folders)) {}

void DiskFiles::createApplicationDirectory() {
    std::error_code error;
    fs::create_directories(folders_.user.parent_path(), error);
    if (fs::create_directory(folders_.user, error))
        fs::permissions(folders_.user, fs::perms::owner_all, fs::perm_options::replace, error);
}

void DiskFiles::prepareFolders() {
    std::error_code error;
    fs::create_directory(folders_.user / "logs", error);
    for (const fs::path& folder : {folders_.user, folders_.user / "logs"}) sweepLeftovers(folder);
}

std::string DiskFiles::applicationDirectory() const {
    return folders_.user.string();
}

fs::path DiskFiles::native(const std::string& path) const {
    fs::path mapped = platform::fileSystemPath(path, applicationDirectory());
    const bool isOptions = mapped == folders_.user / "opciones.ini";
    if (!isOptions || ::access(mapped.c_str(), F_OK) == 0) return mapped;
    // A folder brought from another system may have the other spelling of the name.
    fs::path other = folders_.user / "Opciones.ini";
    return ::access(other.c_str(), F_OK) == 0 ? other : mapped;
}

fs::path DiskFiles::readPath(const std::string& path) const {
    fs::path own = native(path);
    if (folders_.user == folders_.supplied || ::access(own.c_str(), F_OK) == 0) return own;
    const fs::path inside = own.lexically_relative(folders_.user);
    const bool outside = inside.empty() || *inside.begin() == "..";
    return outside ? own : folders_.supplied / inside;
}

platform::Files::Content DiskFiles::read(const std::string& path) const {
    return readFile(readPath(path));
}

bool DiskFiles::exists(const std::string& path) const {
    return ::access(readPath(path).c_str(), F_OK) == 0;
}

bool DiskFiles::replace(const std::string& path, const std::string& bytes) {
    return replaceFile(native(path), bytes);
}

bool DiskFiles::append(const std::string& path, const std::string& bytes) {
    const Descriptor file(
        ::open(native(path).c_str(), O_WRONLY | O_APPEND | O_CREAT | O_NONBLOCK | O_CLOEXEC, ownerOnly));
    struct ::stat before {};
    if (!file || ::fstat(file.number(), &before) != 0) return false;
    if (writeAll(file.number(), bytes)) return true;
    // A full disk may have taken a part of the bytes: the file gets its old length back.
    [[maybe_unused]] const int cut = ::ftruncate(file.number(), before.st_size);
    return false;
}

bool DiskFiles::remove(const std::string& path) {
    return ::unlink(native(path).c_str()) == 0;
}

bool DiskFiles::rename(const std::string& from, const std::string& to) {
    const fs::path source = native(from);
    const fs::path target = behindLinks(native(to));
    if (isWriteProtected(target)) return false;
    if (::rename(source.c_str(), target.c_str()) == 0) {
        flushFolder(target.parent_path());
        return true;
    }
    if (errno != EXDEV) return false;
    const auto content = readFile(source);
    if (content.status != Status::read || !replaceFile(target, content.bytes)) return false;
    ::unlink(source.c_str());
    return true;
}

std::optional<std::string> DiskFiles::temporaryFolder() const {
    std::error_code error;
    const fs::path folder = fs::temp_directory_path(error);
    if (error) return std::nullopt;
    return folder.string();
}

std::optional<std::string> DiskFiles::createTemporaryFile(const std::string& folder, const std::string& prefix) {
    std::string name = (fs::path(folder) / (prefix + "XXXXXX")).string();
    const Descriptor file(::mkostemp(name.data(), O_CLOEXEC));
    if (!file) return std::nullopt;
    return name;
}

} // namespace velmoriax::desktop
