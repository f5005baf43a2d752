// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/profile_editor.h"
#include "biorhythm/profile_files.h"
#include "biorhythm/profile_store.h"
#include "shell/options_store.h"
#include "support/disk_fixture.h"

#include <csignal>
#include <random>
#include <sys/resource.h>
#include <sys/wait.h>

namespace velmoriax::desktop {
namespace {

namespace fs = std::filesystem;
using Code = base::RunTimeError::Code;
using Status = platform::Files::Status;

const std::vector<std::string> kept{"\\opciones.ini", "\\perfiles.txt", "\\bio.dat", "\\horabio.dat", "\\biofinal.dat"};

struct HardDisk : test::DiskFixture {
    HardDisk() {
        options_.setOption(shell::key::tirada, "real");
        biorhythm::createMissingProfileFiles(files_);
        biorhythm::appendProfile(files_, "Ann", {{1980, 3, 15}, "7:45"});
        biorhythm::appendProfile(files_, "Bea", {{1990, 5, 1}, "8:00"});
    }

    std::vector<std::string> contents() const {
        std::vector<std::string> all;
        for (const std::string& literal : kept) all.push_back(bytesAt(literal));
        return all;
    }
    auto entries() const { return std::distance(fs::recursive_directory_iterator(root_), {}); }

    /// Every kind of write that the program makes; true when all that can report a failure did.
    bool everyWriteFails() {
        const std::string longText(300'000, 'x');
        options_.setOption(shell::key::songAmbient, longText);
        biorhythm::removeProfileLines(files_, boxes_, "Ann,March/15/1980,7:45", biorhythm::deleteMessages);
        const bool appended = biorhythm::appendProfile(files_, longText, {{1980, 3, 15}, "7:45"}) ||
                              files_.append(at("\\perfiles.txt"), longText);
        const auto save = [&] { biorhythm::saveBioState(files_, state_, {{1999, 9, 9}, {9, 9, 0}}, {2099, 9, 9}); };
        return test::codeOf(save) == Code::pathFileAccess && !appended;
    }

    shell::OptionsStore options_{files_};
    biorhythm::BioState state_;
    test::FakeBoxes boxes_;
};

/// A limit on the size of files stops a write half way, as a full disk does, and needs no disk of its own.
class SizeLimit {
public:
    explicit SizeLimit(::rlim_t bytes) {
        before_ = std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &limit_);
        const ::rlimit small{bytes, limit_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &small);
    }
    ~SizeLimit() {
        ::setrlimit(RLIMIT_FSIZE, &limit_);
        std::signal(SIGXFSZ, before_);
    }
    SizeLimit(const SizeLimit&) = delete;
    SizeLimit& operator=(const SizeLimit&) = delete;

private:
    ::rlimit limit_{};
    void (*before_)(int) = nullptr;
};

TEST_F(HardDisk, AFullDiskLeavesEveryFileAndNoOther) {
    const test::Variable temporary("TMPDIR", root_);
    const auto before = contents();
    const auto count = entries();
    bool failed = false;
    {
        const SizeLimit limit(5);
        failed = everyWriteFails();
    }
    EXPECT_TRUE(failed);
    EXPECT_EQ(contents(), before);
    EXPECT_EQ(entries(), count);
}

/// Runs as nobody where the test runs as root, for whom no folder is read-only; in a process of its own.
template<typename Run>
[[noreturn]] void asCommonUser(Run run) {
    constexpr ::uid_t nobody = 65534;
    const bool common = ::getuid() != 0 || (::setgid(nobody) == 0 && ::setuid(nobody) == 0);
    std::_Exit(common && run() ? EXIT_SUCCESS : EXIT_FAILURE);
}

TEST_F(HardDisk, AReadOnlyFolderLeavesEveryFile) {
    const std::array folders{root_, user_, user_ / "logs"};
    for (const fs::path& folder : folders) fs::permissions(folder, fs::perms(0555));
    for (const auto& entry : fs::directory_iterator(user_))
        if (entry.is_regular_file()) fs::permissions(entry, fs::perms(0444));
    const auto before = contents();
    const auto run = [&] {
        files_.prepareFolders();
        return everyWriteFails() && contents() == before && options_.option(shell::key::tirada) == "real";
    };
    EXPECT_EXIT(asCommonUser(run), testing::ExitedWithCode(EXIT_SUCCESS), "");
    EXPECT_EQ(contents(), before);
    for (const fs::path& folder : folders) fs::permissions(folder, fs::perms::owner_all);
}

TEST_F(HardDisk, AFolderUnderAFilesNameStaysAFolder) {
    for (const std::string& literal : kept) {
        files_.remove(at(literal));
        fs::create_directory(user_ / literal.substr(1));
    }
    EXPECT_TRUE(everyWriteFails());
    EXPECT_EQ(options_.option(shell::key::tirada), "");
    EXPECT_TRUE(biorhythm::profileLines(files_).empty());
    EXPECT_THROW(biorhythm::loadBirth(files_, state_), base::RunTimeError);
    for (const std::string& literal : kept) EXPECT_EQ(files_.read(at(literal)).status, Status::unreadable) << literal;
}

constexpr int kills = 200; ///< of each writer

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
        biorhythm::appendProfile(files, "Ann", {{1980, 3, 15}, "7:45"});
    else
        biorhythm::removeProfileLines(files, boxes, "Ann,March/15/1980,7:45", biorhythm::deleteMessages);
}

void editProfile(DiskFiles& files, int turn) {
    test::FakeBoxes boxes;
    const std::string last = biorhythm::profileLines(files).back();
    const auto copy = biorhythm::copyWithoutProfile(files, boxes, last, biorhythm::modifyMessages);
    biorhythm::submitProfile(files, copy.value(), "Ann", {{1980, 3, 15}, {7, turn % 2, 0}});
}

using Write = void (*)(DiskFiles& files, int turn);

struct KilledWrites : test::DiskFixture {
    KilledWrites() { fs::create_directory(root_ / "tmp"); }

    /// Creates the files of a writer and records their contents after each step of an undisturbed run.
    void prepare(Write write) {
        whole_.clear();
        files_.replace(at("\\opciones.ini"), "[opciones]\r\nTirada=real\r\n" + manyLines("; a remark"));
        files_.replace(at("\\perfiles.txt"), manyLines("Bea,May/1/1990,8:00") + "Ann,March/15/1980,7:45\r\n");
        for (int turn = 0; turn < 4; ++turn) {
            write(files_, turn);
            for (const fs::path& path : filesThatAre(whole)) whole_[path].insert(test::bytesOf(path));
        }
    }

    enum Kind { whole, halfWritten };
    /// The program's files, or the half-written ones beside them.
    std::vector<fs::path> filesThatAre(Kind kind) const {
        std::vector<fs::path> all;
        for (const auto& entry : fs::directory_iterator(user_)) {
            const bool temporary = entry.path().filename().string().starts_with(".velmoriax-");
            if (entry.is_regular_file() && temporary == (kind == halfWritten)) all.push_back(entry.path());
        }
        return all;
    }
    void expectWholeFiles(int kill) const {
        ASSERT_EQ(filesThatAre(whole).size(), whole_.size()) << "a file is gone after kill " << kill;
        for (const auto& [path, states] : whole_)
            ASSERT_TRUE(states.contains(test::bytesOf(path))) << path << " is neither old nor new after kill " << kill;
    }

    /// Starts a process that writes as fast as it can, and kills it after some time.
    void killWhileWriting(Write write, int microseconds) {
        const ::pid_t writer = ::fork();
        ASSERT_GT(writer, -1) << "no process to kill";
        if (writer == 0) {
            for (int turn = 0;; ++turn) write(files_, turn);
        }
        ::usleep(static_cast<::useconds_t>(microseconds));
        ::kill(writer, SIGKILL);
        int status = 0;
        ::waitpid(writer, &status, 0);
        ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) << "the writer ended by itself";
    }

    test::Variable temporary_{"TMPDIR", root_ / "tmp"};
    std::map<fs::path, std::set<std::string>> whole_; ///< after each step of an undisturbed run
};

TEST_F(KilledWrites, LeaveEveryFileWholeAndTheNextStartDeletesTheRest) {
    std::mt19937 random(15);
    std::uniform_int_distribution<int> microseconds(100, 15'000);
    for (const Write write : {writeOptions, writeDatFiles, deleteAndSaveProfile, editProfile}) {
        prepare(write);
        for (int kill = 0; kill < kills; ++kill) {
            ASSERT_NO_FATAL_FAILURE(killWhileWriting(write, microseconds(random)));
            ASSERT_NO_FATAL_FAILURE(expectWholeFiles(kill));
        }
    }
    const auto left = filesThatAre(halfWritten);
    std::cout << "the kills left " << left.size() << " half-written files\n";
    files_.prepareFolders();
    EXPECT_EQ(filesThatAre(halfWritten), left) << "what is fresh may be another instance's";
    for (const fs::path& path : left)
        fs::last_write_time(path, fs::file_time_type::clock::now() - std::chrono::minutes(2));
    files_.prepareFolders();
    EXPECT_TRUE(filesThatAre(halfWritten).empty());
    expectWholeFiles(kills);
}

} // namespace
} // namespace velmoriax::desktop
