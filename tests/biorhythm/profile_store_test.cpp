// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/run_time_error.h"
#include "biorhythm/profile_editor.h"
#include "biorhythm/profile_store.h"
#include "tests/support/fakes.h"

#include <gtest/gtest.h>

namespace velmoriax::biorhythm {

namespace {

constexpr base::CivilDate annsBirth{1980, 3, 15};
constexpr std::string_view annsLine = "Ann,March/15/1980,7:45";

class ProfileStore : public testing::Test {
protected:
    std::string& list() { return files.at("\\perfiles.txt"); }

    std::optional<std::string> save(const std::string& name, std::string_view time) {
        boxes.textAnswers.push_back(name);
        return saveProfile(files, boxes, options, annsBirth, time);
    }

    test::FakeFiles files;
    test::FakeBoxes boxes;
    shell::OptionsStore options{files};
};

} // namespace

TEST_F(ProfileStore, SavesARecordOnceAndASecondOneOfTheSameName) {
    EXPECT_EQ(save("Ann", "7:05"), "Ann");
    EXPECT_EQ(list(), "Ann,March/15/1980,7:05\r\n");
    EXPECT_EQ(options.option(shell::key::perfilBio), "Ann");
    EXPECT_EQ(save("Ann", "7:05"), std::nullopt);
    const test::FakeBoxes::Shown refusal{platform::BoxIcon::warning, "This profile exists already, put another please.",
                                         "Error"};
    EXPECT_EQ(boxes.shown, std::vector{refusal});
    EXPECT_EQ(save("Ann", "7:06"), "Ann") << "the whole record is compared";
    EXPECT_EQ(saveProfile(files, boxes, options, annsBirth, "9:00"), std::nullopt) << "cancelled";
    EXPECT_EQ(profileNames(files), (std::vector<std::string>{"Ann", "Ann"}));
    EXPECT_EQ(findProfile(files, "Ann")->time.minute, 6) << "of two lines the last decides";
    files.readOnly = true;
    EXPECT_THROW(save("Bea", "7:05"), base::RunTimeError);
}

TEST_F(ProfileStore, KeepsNamesInTheWesternCodePage) {
    EXPECT_EQ(save("Zoe\u0308 \u03A9", "7:05"), "Zo\u00EB ?") << "composed, and ? for what the code page lacks";
    EXPECT_EQ(list(), "Zo\xEB ?,March/15/1980,7:05\r\n");
    EXPECT_TRUE(findProfile(files, "Zo\u00EB \u03A9")) << "found under the name as it was typed, too";
}

TEST_F(ProfileStore, ReadsWhatOtherHandsLeftInTheList) {
    struct Row {
        const char* line;
        std::optional<base::CivilTime> time;
        const char* reason;
    };
    const Row rows[] = {
        {"Ann,March/15/1980,7:5", base::CivilTime{7, 5, 0}, "the editor's minute without padding"},
        {"Ann", std::nullopt, "a name alone"},
        {"Ann,March/15/1980", std::nullopt, "no time"},
        {"Ann,March/15/1980,99:99", std::nullopt, "no such time"},
        {"Ann,marzo/15/1980,7:45", std::nullopt, "no month of the list"},
        {"Ann,March/15/4294969276,7:45", std::nullopt, "a year that folds onto 1980 in 32 bits"},
        {"Ann, Sample,March/15/1980,7:45", std::nullopt, "a comma in the name"},
    };
    for (const Row& row : rows) {
        list() = std::string("Bea,May/1/1990,8:00\n\r\n") + row.line;
        const auto birth = findProfile(files, "Ann");
        ASSERT_EQ(birth.has_value(), row.time.has_value()) << row.reason;
        if (birth) EXPECT_EQ(*birth, (base::CivilMoment{annsBirth, *row.time})) << row.reason;
        EXPECT_EQ(profileLines(files), (std::vector<std::string>{"Bea,May/1/1990,8:00", row.line})) << row.reason;
    }
    list() = std::string(1 << 20, ',') + "\r\n" + std::string(annsLine);
    EXPECT_TRUE(findProfile(files, "Ann"));
    EXPECT_TRUE(appendProfile(files, "Bea", annsBirth, "8:00"));
    EXPECT_EQ(profileLines(files).size(), 3U) << "a last line without an end is not grown into";
    EXPECT_EQ(monthNumberFromName("december", "4"), "4") << "a name outside the list leaves the number";
}

TEST_F(ProfileStore, DeletesEveryLineThatHoldsTheSelectedOneAndCopiesTheRestToTheByte) {
    list() = "Jo\x81\xE9,May/1/1990,8:00\r\n\r\nJoann,March/15/1980,7:45\r\n" + std::string(annsLine) +
             "\r\nann,March/15/1980,7:45\nBea,x";
    removeProfileLines(files, boxes, annsLine, deleteMessages);
    EXPECT_EQ(list(), "Jo\x81\xE9,May/1/1990,8:00\r\n\r\nJoann,March/15/1980,7:45\r\nann,March/15/1980,7:45\n"
                      "Bea,x\r\n")
        << "the test knows capital letters: Joann stays for Ann";
    removeProfileLines(files, boxes, "ann,March/15/1980,7:45", deleteMessages);
    EXPECT_EQ(list(), "Jo\x81\xE9,May/1/1990,8:00\r\n\r\nBea,x\r\n") << "Joann goes with ann";
    removeProfileLines(files, boxes, profileLines(files).front(), deleteMessages);
    EXPECT_EQ(list(), "\r\nBea,x\r\n");
    removeProfileLines(files, boxes, "", deleteMessages);
    EXPECT_EQ(list(), "\r\nBea,x\r\n") << "no selection deletes nothing";
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(ProfileStore, TellsWhyARewriteFailsAndLeavesTheList) {
    list() = annsLine;
    files.temporaryFolderMissing = true;
    EXPECT_FALSE(copyWithoutProfile(files, boxes, annsLine, deleteMessages));
    EXPECT_EQ(boxes.shown.back().text, "Error getting temporary file path.");
    files.temporaryFolderMissing = false;
    files.temporaryNameFails = true;
    removeProfileLines(files, boxes, annsLine, modifyMessages);
    EXPECT_EQ(boxes.shown.back().text, "Error searching the name of file.");
    files.temporaryNameFails = false;
    files.unreadable.insert("/home/ann/velmoriax/perfiles.txt");
    removeProfileLines(files, boxes, annsLine, deleteMessages);
    EXPECT_EQ(boxes.shown.size(), 2U) << "a list that cannot be read is left alone in silence";
    EXPECT_EQ(list(), annsLine);
}

TEST_F(ProfileStore, EditsARecordOntoTheEndOfTheList) {
    list() = std::string(annsLine) + "\r\nBea,May/1/1990,12:30\r\n";
    const auto copy = copyWithoutProfile(files, boxes, annsLine, modifyMessages);
    const EditedProfile ann = editedProfile("Ann,March/15/1980,7:05");
    submitProfile(files, copy, ann.name, *ann.date, ann.time);
    EXPECT_EQ(list(), "Bea,May/1/1990,12:30\r\nAnn,March/15/1980,7:5\r\n");
    EXPECT_EQ(editedProfile("Bea,May/1/1990,12:30").time.minute, 30);
    EXPECT_EQ(editedProfile(annsLine).time.minute, 45);
    EXPECT_EQ(editedProfile("Bea,May/1/1990,99:99").time, (base::CivilTime{23, 59, 0})) << "the steppers' bounds";
    EXPECT_EQ(editedProfile("Smith, John,March/15/1980,7:45").date, std::nullopt);
}

TEST(ProfileList, SelectsTheStoredNameElseAnEndOfTheList) {
    const std::vector<std::string> names{"Ann", "Bea", "Ann"};
    EXPECT_EQ(selectedAtLoad(names, "Bea"), 1U);
    EXPECT_EQ(selectedAtLoad(names, ""), 0U);
    EXPECT_EQ(selectedAtLoad(names, "Cid"), std::nullopt);
    EXPECT_EQ(selectedAfterEdit(names, "Cid"), 2U);
}

} // namespace velmoriax::biorhythm
