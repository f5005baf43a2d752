// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/program_paths.h"
#include "support/disk_fixture.h"

#include <sys/stat.h>

namespace velmoriax::desktop {
namespace {

namespace fs = std::filesystem;
using Status = platform::Files::Status;
using test::bytesOf;

struct DiskFilesTest : test::DiskFixture {
    /// How many entries the user's folder has; the logs' folder is one of them.
    auto entries() const { return std::distance(fs::directory_iterator(user_), {}); }
};

TEST_F(DiskFilesTest, BothSpellingsReachOneOptionsFileInAFolderForTheUserAlone) {
    ASSERT_TRUE(files_.replace(at("\\Opciones.ini"), "[opciones]\r\n"));
    EXPECT_EQ(bytesAt("\\opciones.ini"), "[opciones]\r\n");
    EXPECT_EQ(entries(), 2);
    EXPECT_EQ(fs::status(user_).permissions(), fs::perms::owner_all);
}

TEST_F(DiskFilesTest, TheUsersPictureReplacesTheSuppliedOne) {
    fs::create_directories(root_ / "share" / "imagenes");
    write(root_ / "share" / "imagenes" / "mago1.jpg", "supplied");
    EXPECT_EQ(bytesAt("\\imagenes\\mago1.jpg"), "supplied");
    fs::create_directory(user_ / "imagenes");
    ASSERT_TRUE(files_.replace(at("\\imagenes\\mago1.jpg"), "my own"));
    EXPECT_EQ(bytesAt("\\imagenes\\mago1.jpg"), "my own");
    EXPECT_EQ(bytesOf(root_ / "share" / "imagenes" / "mago1.jpg"), "supplied")
        << "only the user's folder is written to";
    EXPECT_EQ(files_.read(at("\\..\\..\\etc\\passwd")).status, Status::missing);
}

TEST_F(DiskFilesTest, APipeDoesNotBlockTheProgram) {
    ASSERT_EQ(::mkfifo((user_ / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(files_.read(at("\\pipe")).status, Status::unreadable);
}

TEST_F(DiskFilesTest, ReplacingAndRenamingLeaveNoOtherFileAndKeepLinks) {
    write(root_ / "elsewhere", "old");
    write(root_ / "copy", "renamed");
    fs::create_symlink(root_ / "elsewhere", user_ / "bio.dat");
    ASSERT_TRUE(files_.replace(at("\\bio.dat"), "replaced"));
    EXPECT_EQ(bytesOf(root_ / "elsewhere"), "replaced");
    ASSERT_TRUE(files_.rename(root_ / "copy", at("\\bio.dat")));
    EXPECT_EQ(bytesOf(root_ / "elsewhere"), "renamed");
    EXPECT_TRUE(fs::is_symlink(user_ / "bio.dat"));
    EXPECT_EQ(entries(), 2);
}

TEST_F(DiskFilesTest, OnlyLeftoversAreDeletedAtTheStart) {
    fs::create_directory(user_ / ".velmoriax-folder");
    for (const char* name : {".velmoriax-a1B2c3", ".velmoriax-notes", ".velmoriax.lock", "velmoriax-a1B2c3"}) {
        write(user_ / name, "");
        fs::last_write_time(user_ / name, fs::file_time_type::clock::now() - std::chrono::hours(48));
    }
    files_.prepareFolders();
    EXPECT_FALSE(fs::exists(user_ / ".velmoriax-a1B2c3"));
    EXPECT_EQ(entries(), 5);
}

TEST_F(DiskFilesTest, AFileIsCreatedButNotItsFolder) {
    for (const char* text : {"a", "b"}) EXPECT_TRUE(files_.append(at("\\logs\\resNames.log"), text));
    EXPECT_EQ(bytesAt("\\logs\\resNames.log"), "ab");
    EXPECT_FALSE(files_.append(at("\\nowhere\\resNames.log"), "a"));
}

TEST_F(DiskFilesTest, RenamingFromTheTemporaryFolderReplacesTheTarget) {
    const auto temporary = files_.createTemporaryFile(files_.temporaryFolder().value(), "tmp");
    ASSERT_TRUE(temporary && files_.replace(*temporary, "fresh") && files_.replace(at("\\perfiles.txt"), "old"));
    EXPECT_TRUE(files_.rename(*temporary, at("\\perfiles.txt")));
    EXPECT_FALSE(files_.exists(*temporary));
    EXPECT_FALSE(files_.rename(*temporary, at("\\perfiles.txt")));
    EXPECT_EQ(bytesAt("\\perfiles.txt"), "fresh");
}

TEST_F(DiskFilesTest, TheProgramIsPortableBesideThePicturesElseItsFilesAreInTheUsersFolder) {
    fs::create_directories(root_ / "app" / "imagenes");
    EXPECT_EQ(programFolders(root_ / "app" / "Velmoriax").user, root_ / "app");
    const test::Variable ignored("XDG_DATA_HOME", "a/relative/path");
    const test::Variable home("HOME", "/home/ann");
    const ProgramFolders installed = programFolders(root_ / "lib" / "velmoriax" / "Velmoriax");
    EXPECT_EQ(installed.user, "/home/ann/.local/share/velmoriax");
    EXPECT_EQ(installed.supplied, root_ / "share" / "velmoriax");
}

TEST(ProgramPaths, OnlyWhatIsInsideIsTranslated) {
    EXPECT_EQ(platform::fileSystemPath("/a\\b\\logs\\x", "/a\\b"), "/a\\b/logs/x") << "a folder may hold a backslash";
    EXPECT_EQ(platform::fileSystemPath("/tmp/tmp\\1", "/home/x"), "/tmp/tmp\\1");
    for (const char* inRoot : {"/\\bio.dat", "/bio.dat"})
        EXPECT_EQ(platform::fileSystemPath(inRoot, "/"), "/bio.dat")
            << "the path of a card has no separator when the folder is the root";
    EXPECT_TRUE(platform::takesSubdirectory("/ab") && !platform::takesSubdirectory("/"));
}

TEST_F(DiskFilesTest, TheOptionsFileIsFoundUnderItsOtherSpellingAndStaysOne) {
    write(user_ / "Opciones.ini", "[opciones]\r\n");
    EXPECT_EQ(bytesAt("\\opciones.ini"), "[opciones]\r\n");
    ASSERT_TRUE(files_.replace(at("\\Opciones.ini"), "new"));
    EXPECT_EQ(bytesAt("\\opciones.ini"), "new");
    EXPECT_FALSE(fs::exists(user_ / "opciones.ini")) << "no second file appears beside it";
}

} // namespace
} // namespace velmoriax::desktop
