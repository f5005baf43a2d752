// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/profile_editor.h"
#include "biorhythm/profile_files.h"
#include "biorhythm/profile_store.h"
#include "support/fakes.h"

namespace velmoriax::biorhythm {
namespace {

using Code = base::RunTimeError::Code;
constexpr base::CivilDate today{2026, 11, 15};
constexpr base::CivilDate annsBirth{1980, 3, 15};
constexpr std::string_view annsLine = "Ann,March/15/1980,7:45";

struct ProfileStore : testing::Test {
    std::string& list() { return files.at("\\perfiles.txt"); }

    std::optional<std::string> save(const std::string& name, std::string_view time) {
        boxes.textAnswers.push_back(name);
        return saveProfile(files, boxes, options, {annsBirth, time});
    }

    test::FakeFiles files;
    test::FakeBoxes boxes;
    shell::OptionsStore options{files};
};

TEST_F(ProfileStore, SavesARecordOnceAndASecondOneOfTheSameName) {
    EXPECT_EQ(save("Ann", "7:05"), "Ann");
    EXPECT_EQ(list(), "Ann,March/15/1980,7:05\r\n");
    EXPECT_EQ(options.option(shell::key::perfilBio), "Ann");
    EXPECT_EQ(save("Ann", "7:05"), std::nullopt);
    const test::FakeBoxes::Shown refusal{platform::BoxIcon::warning, "This profile exists already, put another please.",
                                         "Error"};
    EXPECT_EQ(boxes.shown, std::vector{refusal});
    EXPECT_EQ(save("Ann", "7:06"), "Ann") << "the whole record is compared";
    EXPECT_EQ(saveProfile(files, boxes, options, {annsBirth, "9:00"}), std::nullopt) << "cancelled";
    EXPECT_EQ(profileNames(files), (std::vector<std::string>{"Ann", "Ann"}));
    EXPECT_EQ(findProfile(files, "Ann")->time.minute, 6) << "of two lines the last decides";
    files.readOnly = true;
    EXPECT_THROW(save("Bea", "7:05"), base::RunTimeError);
}

TEST_F(ProfileStore, KeepsNamesInWindows1252) {
    EXPECT_EQ(save("Zoe\u0308 \u03A9", "7:05"), "Zo\u00EB ?") << "composed, and ? for what the code page lacks";
    EXPECT_EQ(list(), "Zo\xEB ?,March/15/1980,7:05\r\n");
    EXPECT_TRUE(findProfile(files, "Zo\u00EB \u03A9")) << "found under the name as it was typed, too";
}

TEST_F(ProfileStore, ReadsLinesThatOtherProgramsWrote) {
    const test::Table<std::string, std::optional<base::CivilTime>, const char*> rows{
        {"Ann,March/15/1980,7:5", base::CivilTime{7, 5, 0}, "the editor's minute without padding"},
        {"Ann", std::nullopt, "a name alone"},
        {"Ann,March/15/1980", std::nullopt, "no time"},
        {"Ann,March/15/1980,99:99", std::nullopt, "no such time"},
        {"Ann,marzo/15/1980,7:45", std::nullopt, "not an English month"},
        {"Ann,March/15/4294969276,7:45", std::nullopt, "a year that is 1980 after an overflow of 32 bits"},
        {"Ann, Sample,March/15/1980,7:45", std::nullopt, "a comma in the name"},
    };
    for (const auto& [line, time, why] : rows) {
        list() = "Bea,May/1/1990,8:00\n\r\n" + line;
        const auto birth = findProfile(files, "Ann");
        ASSERT_EQ(birth.has_value(), time.has_value()) << why;
        if (birth) EXPECT_EQ(*birth, (base::CivilMoment{annsBirth, *time})) << why;
        EXPECT_EQ(profileLines(files), (std::vector<std::string>{"Bea,May/1/1990,8:00", line})) << why;
    }
    list() = std::string(1 << 20, ',') + "\r\n" + std::string(annsLine);
    EXPECT_TRUE(findProfile(files, "Ann"));
    EXPECT_TRUE(appendProfile(files, "Bea", {annsBirth, "8:00"}));
    EXPECT_EQ(profileLines(files).size(), 3U) << "a record is a line of its own behind a last line without an end";
    EXPECT_EQ(monthNumberFromName("december", "4"), "4") << "a name outside the list leaves the number";
}

TEST_F(ProfileStore, DeletesEveryLineThatContainsTheSelectedOneAndKeepsTheOtherBytes) {
    list() = "Jo\x81\xE9,x\r\n\r\nJoAnn,March/15/1980,7:45\r\nann,March/15/1980,7:45\n" + std::string(annsLine);
    removeProfileLines(files, boxes, annsLine, deleteMessages);
    const std::string rest = "Jo\x81\xE9,x\r\n\r\nann,March/15/1980,7:45\n";
    EXPECT_EQ(list(), rest) << "JoAnn is deleted with Ann, and ann is not";
    removeProfileLines(files, boxes, "", deleteMessages);
    EXPECT_EQ(list(), rest) << "no selection deletes nothing";
    files.unreadable.insert("/home/ann/velmoriax/perfiles.txt");
    removeProfileLines(files, boxes, "ann,March/15/1980,7:45", deleteMessages);
    EXPECT_EQ(list(), rest) << "a list that cannot be read is left alone";
    EXPECT_TRUE(boxes.shown.empty()) << "without any message";
}

TEST_F(ProfileStore, MovesAnEditedRecordToTheEndOfTheList) {
    list() = std::string(annsLine) + "\r\nBea,May/1/1990,12:30\r\n";
    const auto copy = copyWithoutProfile(files, boxes, annsLine, modifyMessages);
    const EditedProfile ann = editedProfile("Ann,March/15/1980,7:05");
    submitProfile(files, copy.value(), ann.name, {*ann.date, ann.time});
    EXPECT_EQ(list(), "Bea,May/1/1990,12:30\r\nAnn,March/15/1980,7:5\r\n");
    EXPECT_EQ(editedProfile("Bea,May/1/1990,12:30").time.minute, 30);
    EXPECT_EQ(editedProfile(annsLine).time.minute, 45);
    EXPECT_EQ(editedProfile("Bea,May/1/1990,99:99").time, (base::CivilTime{23, 59, 0}))
        << "the bounds of the spin boxes";
    EXPECT_EQ(editedProfile("Smith, John,March/15/1980,7:45").date, std::nullopt);
}

TEST(ProfileList, SelectsTheStoredNameElseTheFirstOrLastEntry) {
    const std::vector<std::string> names{"Ann", "Bea", "Ann"};
    EXPECT_EQ(selectedAtLoad(names, "Bea"), 1U);
    EXPECT_EQ(selectedAtLoad(names, ""), 0U);
    EXPECT_EQ(selectedAtLoad(names, "Cid"), std::nullopt);
    EXPECT_EQ(selectedAfterEdit(names, "Cid"), 2U);
}

struct ProfileFiles : testing::Test {
    test::FakeFiles files;
    BioState state;
};

TEST_F(ProfileFiles, AreCreatedUnsetAndOnlyWhereTheyAreMissing) {
    files.at("\\horabio.dat") = "spoiled";
    createMissingProfileFiles(files);
    EXPECT_EQ(files.at("\\bio.dat"), "1,1,1900\r\n");
    EXPECT_EQ(files.at("\\biofinal.dat"), "0,0,0\r\n");
    EXPECT_EQ(files.at("\\horabio.dat"), "spoiled");
    files.contents.erase("/home/ann/velmoriax/horabio.dat");
    createMissingProfileFiles(files);
    loadBirth(files, state);
    loadBirthTime(files, state);
    loadFinalDate(files, state, today);
    EXPECT_FALSE(birthDateIsSet(state));
    EXPECT_EQ(birthOf(state).time, (base::CivilTime{12, 0, 0}));
    EXPECT_EQ(finalDateOf(state), today) << "today when no target is set";
    EXPECT_EQ(state.finalDateText, "15/11/2026");
}

TEST_F(ProfileFiles, AreWrittenToTheByteAndReadBack) {
    const base::CivilMoment birth{{1980, 3, 15}, {7, 45, 0}};
    saveBioState(files, state, birth, {2030, 12, 1});
    EXPECT_EQ(files.at("\\bio.dat"), "15,3,1980\r\n");
    EXPECT_EQ(files.at("\\biofinal.dat"), "1,12,2030\r\n");
    EXPECT_EQ(files.at("\\horabio.dat"), "7,45\r\n");
    BioState again;
    loadBirth(files, again);
    loadBirthTime(files, again);
    EXPECT_EQ(birthOf(again), birth);
    files.readOnly = true;
    EXPECT_EQ(test::codeOf([&] { saveBirthTime(files, state, {8, 0, 0}); }), Code::pathFileAccess);
    EXPECT_EQ(files.at("\\horabio.dat"), "7,45\r\n");
}

TEST_F(ProfileFiles, AreReadExactlyOrNotAtAll) {
    const test::Table<const char*, std::optional<Code>, const char*> rows{
        {"15,3,1980", std::nullopt, "no line end"},
        {" 15 ,\t3, 1980 \r\n\r\n", std::nullopt, "spaces around the numbers"},
        {"", Code::inputPastEndOfFile, "empty"},
        {"15,3", Code::inputPastEndOfFile, "truncated between numbers"},
        {"15,3,1980,", Code::typeMismatch, "a field too many"},
        {"15,March,1980", Code::typeMismatch, "a word"},
        {"15.4,3,1980", Code::typeMismatch, "a fraction"},
        {"31,2,1980", Code::typeMismatch, "no such day"},
        {"15,3,80", Code::typeMismatch, "a year of two digits"},
        {"15,3,32768", Code::overflow, "beyond 16 bits"},
        {"15,3,-99999999999999999999999", Code::overflow, "beyond any number"},
    };
    for (const auto& [content, code, why] : rows) {
        files.at("\\bio.dat") = content;
        state = {};
        EXPECT_EQ(test::codeOf([&] { loadBirth(files, state); }), code) << why;
        EXPECT_EQ(birthDateIsSet(state), !code) << why << ": a file that fails changes nothing";
    }
}

TEST_F(ProfileFiles, NameTheFileThatFails) {
    EXPECT_EQ(test::errorOf([&] { loadFinalDate(files, state, today); })->message(),
              "Run-time error '53': File not found\nbiofinal.dat");
    files.at("\\biofinal.dat") = "0,0,1";
    EXPECT_EQ(test::codeOf([&] { loadFinalDate(files, state, today); }), Code::typeMismatch);
    files.at("\\horabio.dat") = "24,0";
    files.unreadable.insert("/home/ann/velmoriax/horabio.dat");
    EXPECT_EQ(test::codeOf([&] { loadBirthTime(files, state); }), Code::pathFileAccess);
    createMissingProfileFiles(files);
    EXPECT_EQ(files.at("\\horabio.dat"), "24,0") << "what cannot be read is not replaced by a default";
}

} // namespace
} // namespace velmoriax::biorhythm
