// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "desktop/disk_files.h"
#include "support/fakes.h"

#include <cstdlib>
#include <unistd.h>

namespace velmoriax::test {

namespace fs = std::filesystem;

/// A variable of the environment for as long as this object lives.
class Variable {
public:
    Variable(const char* name, const std::string& value) : name_(name) {
        if (const char* before = std::getenv(name)) before_ = before;
        ::setenv(name, value.c_str(), 1);
    }
    ~Variable() { before_ ? ::setenv(name_, before_->c_str(), 1) : ::unsetenv(name_); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

private:
    const char* name_;
    std::optional<std::string> before_;
};

/// The program's files on the real disk, in a folder of their own, which is deleted after the test.
class DiskFixture : public testing::Test {
protected:
    DiskFixture() {
        files_.createApplicationDirectory();
        files_.prepareFolders();
    }
    ~DiskFixture() override { fs::remove_all(root_); }

    static fs::path freshFolder() {
        std::string name = (fs::temp_directory_path() / "velmoriax-test-XXXXXX").string();
        return ::mkdtemp(name.data());
    }
    static void write(const fs::path& path, const std::string& bytes) {
        std::ofstream(path, std::ios::binary) << bytes;
    }
    std::string at(const std::string& literal) const { return files_.applicationDirectory() + literal; }
    std::string bytesAt(const std::string& literal) const { return files_.read(at(literal)).bytes; }

    fs::path root_ = freshFolder();
    desktop::DiskFiles files_{{root_ / "a user's \\ folder", root_ / "share"}};
    const fs::path& user_ = files_.folders().user;
};

} // namespace velmoriax::test
