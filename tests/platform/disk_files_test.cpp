// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/program_paths.h"
#include "platform/qt/boxes.h"
#include "platform/qt/disk_files.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <sys/stat.h>
#include <unistd.h>

namespace velmoriax::desktop {
namespace {

namespace fs = std::filesystem;
using Status = platform::Files::Status;

fs::path freshFolder() {
    std::string name = (fs::temp_directory_path() / "velmoriax-test-XXXXXX").string();
    return ::mkdtemp(name.data());
}

class DiskFilesTest : public testing::Test {
protected:
    DiskFilesTest() {
        fs::create_directories(root_ / "share" / "imagenes");
        write(root_ / "share" / "imagenes" / "mago1.jpg", "supplied");
        files_.createFolders();
    }
    ~DiskFilesTest() override { fs::remove_all(root_); }

    static void write(const fs::path& path, const std::string& bytes) {
        std::ofstream(path, std::ios::binary) << bytes;
    }
    static std::string bytesOf(const fs::path& path) {
        std::ostringstream all;
        all << std::ifstream(path, std::ios::binary).rdbuf();
        return all.str();
    }
    std::string at(const std::string& literal) const { return files_.applicationDirectory() + literal; }

    fs::path root_ = freshFolder();
    DiskFiles files_{{root_ / "a user's \\ folder", root_ / "share"}};
};

TEST_F(DiskFilesTest, BothSpellingsReachOneOptionsFile) {
    ASSERT_TRUE(files_.replace(at("\\Opciones.ini"), "[opciones]\r\n"));
    EXPECT_EQ(files_.read(at("\\opciones.ini")).bytes, "[opciones]\r\n");
    EXPECT_EQ(std::distance(fs::directory_iterator(files_.folders().user), {}), 2) << "the file and the logs' folder";
}

TEST_F(DiskFilesTest, TheUsersPictureStandsInPlaceOfTheSuppliedOne) {
    EXPECT_EQ(files_.read(at("\\imagenes\\mago1.jpg")).bytes, "supplied");
    fs::create_directory(files_.folders().user / "imagenes");
    ASSERT_TRUE(files_.replace(at("\\imagenes\\mago1.jpg"), "my own"));
    EXPECT_EQ(files_.read(at("\\imagenes\\mago1.jpg")).bytes, "my own");
    EXPECT_EQ(bytesOf(root_ / "share" / "imagenes" / "mago1.jpg"), "supplied") << "writes are the user's alone";
    EXPECT_EQ(files_.read(at("\\..\\..\\etc\\passwd")).status, Status::missing);
}

TEST_F(DiskFilesTest, WhatIsNoFileIsUnreadableAndStays) {
    fs::create_directory(files_.folders().user / "opciones.ini");
    EXPECT_EQ(files_.read(at("\\opciones.ini")).status, Status::unreadable);
    EXPECT_FALSE(files_.replace(at("\\opciones.ini"), "x"));
    EXPECT_TRUE(fs::is_directory(files_.folders().user / "opciones.ini"));
    ASSERT_EQ(::mkfifo((files_.folders().user / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(files_.read(at("\\pipe")).status, Status::unreadable) << "and it does not wait for a writer";
}

TEST_F(DiskFilesTest, ReplacingLeavesNothingBesideAndKeepsLinks) {
    write(root_ / "elsewhere", "old");
    fs::create_symlink(root_ / "elsewhere", files_.folders().user / "bio.dat");
    ASSERT_TRUE(files_.replace(at("\\bio.dat"), "new"));
    EXPECT_EQ(bytesOf(root_ / "elsewhere"), "new");
    EXPECT_TRUE(fs::is_symlink(files_.folders().user / "bio.dat"));
    for (const auto& entry : fs::directory_iterator(files_.folders().user))
        EXPECT_FALSE(entry.path().filename().string().starts_with(".velmoriax-")) << entry.path();
}

TEST_F(DiskFilesTest, RenamingOverALinkKeepsIt) {
    write(root_ / "elsewhere", "old");
    write(root_ / "copy", "new");
    fs::create_symlink(root_ / "elsewhere", files_.folders().user / "perfiles.txt");
    ASSERT_TRUE(files_.rename(root_ / "copy", at("\\perfiles.txt")));
    EXPECT_EQ(bytesOf(root_ / "elsewhere"), "new");
    EXPECT_TRUE(fs::is_symlink(files_.folders().user / "perfiles.txt"));
}

TEST_F(DiskFilesTest, TheSweepTakesNoFileOfTheUsers) {
    const fs::path& folder = files_.folders().user;
    const auto longAgo = fs::file_time_type::clock::now() - std::chrono::hours(48);
    fs::create_directory(folder / ".velmoriax-folder");
    for (const char* name : {".velmoriax-a1B2c3", ".velmoriax-notes", ".velmoriax.lock", "velmoriax-a1B2c3"}) {
        write(folder / name, "");
        fs::last_write_time(folder / name, longAgo);
    }
    files_.createFolders();
    EXPECT_FALSE(fs::exists(folder / ".velmoriax-a1B2c3"));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), {}), 5) << "the logs' folder and what is not ours";
}

TEST_F(DiskFilesTest, AppendCreatesTheFileButNotItsFolder) {
    EXPECT_TRUE(files_.append(at("\\logs\\resNames.log"), "a"));
    EXPECT_TRUE(files_.append(at("\\logs\\resNames.log"), "b"));
    EXPECT_EQ(files_.read(at("\\logs\\resNames.log")).bytes, "ab");
    EXPECT_FALSE(files_.append(at("\\nowhere\\resNames.log"), "a"));
}

TEST_F(DiskFilesTest, RenamingFromTheTemporaryFolderReplacesTheTarget) {
    const auto temporary = files_.createTemporaryFile(files_.temporaryFolder().value(), "tmp");
    ASSERT_TRUE(temporary);
    ASSERT_TRUE(files_.replace(*temporary, "fresh"));
    ASSERT_TRUE(files_.replace(at("\\perfiles.txt"), "old"));
    EXPECT_TRUE(files_.rename(*temporary, at("\\perfiles.txt")));
    EXPECT_EQ(files_.read(at("\\perfiles.txt")).bytes, "fresh");
    EXPECT_FALSE(files_.exists(*temporary));
    EXPECT_FALSE(files_.rename(*temporary, at("\\perfiles.txt")));
    EXPECT_EQ(files_.read(at("\\perfiles.txt")).bytes, "fresh");
}

TEST_F(DiskFilesTest, FoldersAreForTheUserAlone) {
    EXPECT_EQ(fs::status(files_.folders().user).permissions(), fs::perms::owner_all);
}

TEST(ProgramFolders, PortableBesideThePicturesElseTheUsersFolder) {
    const fs::path root = freshFolder();
    fs::create_directories(root / "lib" / "velmoriax");
    fs::create_directories(root / "app" / "imagenes");
    EXPECT_EQ(programFolders(root / "app" / "Velmoriax").user, root / "app");
    ::setenv("XDG_DATA_HOME", "relative/is/ignored", 1);
    ::setenv("HOME", "/home/ann", 1);
    const ProgramFolders installed = programFolders(root / "lib" / "velmoriax" / "Velmoriax");
    EXPECT_EQ(installed.user, "/home/ann/.local/share/velmoriax");
    EXPECT_EQ(installed.supplied, root / "share" / "velmoriax");
    fs::remove_all(root);
}

TEST(ProgramPaths, OnlyWhatIsInsideIsTranslated) {
    EXPECT_EQ(platform::fileSystemPath("/a\\b\\logs\\x", "/a\\b"), "/a\\b/logs/x") << "a folder may hold a backslash";
    EXPECT_EQ(platform::fileSystemPath("/tmp/tmp\\1", "/home/x"), "/tmp/tmp\\1");
    for (const char* inRoot : {"/\\bio.dat", "/bio.dat"})
        EXPECT_EQ(platform::fileSystemPath(inRoot, "/"), "/bio.dat") << "a card lies in a root without a separator";
    EXPECT_FALSE(platform::takesSubdirectory("/ab"));
    EXPECT_TRUE(platform::takesSubdirectory("/abc"));
}

TEST(Autostart, QuotesByTheDesktopEntryRules) {
    EXPECT_EQ(quotedExecArgument("/opt/my app/V"), "\"/opt/my app/V\"");
    EXPECT_EQ(quotedExecArgument("/a$b\"c`d%e\\f"), "\"/a\\\\$b\\\\\"c\\\\`d%%e\\\\\\\\f\"");
}

} // namespace
} // namespace velmoriax::desktop
