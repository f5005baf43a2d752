// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/profile_editor.h"
#include "biorhythm/profile_files.h"
#include "biorhythm/profile_store.h"
#include "platform/qt/disk_files.h"
#include "shell/options_store.h"
#include "support/fakes.h"

#include <gtest/gtest.h>

#include <csignal>
#include <fstream>
#include <random>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

namespace velmoriax::desktop {
namespace {

namespace fs = std::filesystem;

constexpr int kills = 200;

/// Some pages of the disk, so that a write takes a while.
std::string manyLines(const std::string& line) {
    std::string lines;
    while (lines.size() < 40'000) lines += line + "\r\n";
    return lines;
}

void writeOptions(DiskFiles& files, int turn) {
    shell::OptionsStore(files).setOption(shell::key::tirada, turn % 2 ? "real" : "objetiva");
}

void writeDatFiles(DiskFiles& files, int turn) {
    biorhythm::BioState state;
    const base::CivilDate date = turn % 2 ? base::CivilDate{1980, 3, 15} : base::CivilDate{2001, 12, 31};
    biorhythm::saveBioState(files, state, {date, {turn % 2 ? 7 : 23, 45, 0}}, date);
}

void deleteAndSaveProfile(DiskFiles& files, int turn) {
    test::FakeBoxes boxes;
    if (turn % 2)
        biorhythm::appendProfile(files, "Ann", {1980, 3, 15}, "7:45");
    else
        biorhythm::removeProfileLines(files, boxes, "Ann,March/15/1980,7:45", biorhythm::deleteMessages);
}

void editProfile(DiskFiles& files, int turn) {
    test::FakeBoxes boxes;
    const std::string last = biorhythm::profileLines(files).back();
    const auto copy = biorhythm::copyWithoutProfile(files, boxes, last, biorhythm::modifyMessages);
    biorhythm::submitProfile(files, copy, "Ann", {1980, 3, 15}, {7, turn % 2, 0});
}

struct Writer {
    const char* name;
    void (*write)(DiskFiles& files, int turn);
};

class KilledWrites : public testing::TestWithParam<Writer> {
protected:
    KilledWrites() {
        fs::create_directory(root_ / "tmp");
        ::setenv("TMPDIR", (root_ / "tmp").c_str(), 1);
        files_.createFolders();
        files_.replace(at("\\opciones.ini"), "[opciones]\r\nTirada=real\r\n" + manyLines("; a remark"));
        files_.replace(at("\\perfiles.txt"), manyLines("Bea,May/1/1990,8:00") + "Ann,March/15/1980,7:45\r\n");
        for (int turn = 0; turn < 4; ++turn) {
            GetParam().write(files_, turn);
            for (const auto& [name, bytes] : contents()) whole_[name].insert(bytes);
        }
    }
    ~KilledWrites() override {
        ::unsetenv("TMPDIR");
        fs::remove_all(root_);
    }

    std::string at(const std::string& literal) const { return files_.applicationDirectory() + literal; }

    static fs::path freshFolder() {
        std::string name = (fs::temp_directory_path() / "velmoriax-test-XXXXXX").string();
        return ::mkdtemp(name.data());
    }

    /// The program's files, without what is only on its way to become one.
    std::map<std::string, std::string> contents() const {
        std::map<std::string, std::string> all;
        for (const auto& entry : fs::directory_iterator(files_.folders().user)) {
            const std::string name = entry.path().filename().string();
            if (!entry.is_regular_file() || name.starts_with(".velmoriax-")) continue;
            std::ostringstream bytes;
            bytes << std::ifstream(entry.path(), std::ios::binary).rdbuf();
            all[name] = bytes.str();
        }
        return all;
    }

    /// What is left beside the program's files, in its own folder.
    std::vector<fs::path> leftovers() const {
        std::vector<fs::path> all;
        for (const auto& entry : fs::directory_iterator(files_.folders().user))
            if (entry.path().filename().string().starts_with(".velmoriax-")) all.push_back(entry.path());
        return all;
    }

    /// Lets a process write as fast as it can, and kills it after some time.
    void killWhileWriting(std::chrono::microseconds time) {
        const ::pid_t writer = ::fork();
        ASSERT_GT(writer, -1) << "no process to kill";
        if (writer == 0) {
            for (int turn = 0;; ++turn) GetParam().write(files_, turn);
        }
        ::usleep(static_cast<::useconds_t>(time.count()));
        ::kill(writer, SIGKILL);
        int status = 0;
        ::waitpid(writer, &status, 0);
        ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) << "the writer ended by itself";
    }

    fs::path root_ = freshFolder();
    DiskFiles files_{{root_ / "user", root_ / "share"}};
    std::map<std::string, std::set<std::string>> whole_; ///< what an undisturbed run leaves, by file name
};

TEST_P(KilledWrites, LeaveEveryFileWholeAndTheNextStartSweepsTheRest) {
    std::mt19937 random(15);
    std::uniform_int_distribution<int> microseconds(100, 15'000);
    for (int i = 0; i < kills; ++i) {
        killWhileWriting(std::chrono::microseconds(microseconds(random)));
        for (const auto& [name, bytes] : contents())
            ASSERT_TRUE(whole_[name].contains(bytes)) << name << " is neither the old nor the new after kill " << i;
        ASSERT_EQ(contents().size(), whole_.size()) << "a file is gone after kill " << i;
    }
    const auto left = leftovers();
    std::cout << kills << " kills left " << left.size() << " half-written files, and "
              << std::distance(fs::directory_iterator(root_ / "tmp"), {}) << " in the temporary folder\n";
    files_.createFolders();
    EXPECT_EQ(leftovers().size(), left.size()) << "what is fresh may be another instance's";
    for (const fs::path& path : left)
        fs::last_write_time(path, fs::file_time_type::clock::now() - std::chrono::minutes(2));
    files_.createFolders();
    EXPECT_TRUE(leftovers().empty());
    for (const auto& [name, bytes] : contents()) EXPECT_TRUE(whole_[name].contains(bytes)) << name;
}

INSTANTIATE_TEST_SUITE_P(Of, KilledWrites,
                         testing::Values(Writer{"options", writeOptions}, Writer{"dat_files", writeDatFiles},
                                         Writer{"deleted_profile", deleteAndSaveProfile},
                                         Writer{"edited_profile", editProfile}),
                         [](const auto& info) { return std::string(info.param.name); });

} // namespace
} // namespace velmoriax::desktop
