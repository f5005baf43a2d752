// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/result_logs.h"

#include "support/fakes.h"

#include <gtest/gtest.h>

namespace velmoriax::tarot {
namespace {

struct ResultLogs : testing::Test {
    test::FakeFiles files;
    test::FakeBoxes boxes;
    shell::OptionsStore options{files};
};

TEST_F(ResultLogs, AreKeptOnlyForExactlyYes) {
    for (const char* value : {"", "no", "Yes", "YES", "true"}) {
        options.setOption(shell::key::logResNumbers, value);
        EXPECT_FALSE(savesResults(options, numbersLog)) << value;
    }
    rememberSaving(options, numbersLog, true);
    EXPECT_TRUE(savesResults(options, numbersLog));
    EXPECT_FALSE(savesResults(options, namesLog)) << "each log has a key of its own";
    EXPECT_FALSE(savesResults(options, oracleLog));
    rememberSaving(options, numbersLog, false);
    EXPECT_EQ(options.option("LogResNumbers"), "no");
}

TEST_F(ResultLogs, AreEmptiedToOneLineBreakWhichTheNextRecordFollows) {
    files.at("\\logs\\resNumbers.log") = "old";
    deleteResults(numbersLog, files, boxes);
    EXPECT_EQ(files.at("\\logs\\resNumbers.log"), "old") << "answered No";

    boxes.yesNoAnswers = {true, true};
    deleteResults(numbersLog, files, boxes);
    EXPECT_EQ(files.at("\\logs\\resNumbers.log"), "\r\n");
    deleteResults(oracleLog, files, boxes);
    EXPECT_EQ(files.at("\\logs\\resOracle.log"), "\r\n") << "a missing log comes into being";
    EXPECT_EQ(boxes.questions, (std::vector<std::string>{"Are you sure to completely delete the results?",
                                                         "Are you sure to completely delete the results?",
                                                         "Are you sure to completely delete the results of throws?"}));

    appendRecord(files, NumbersRecord{"1", "mago1.jpg"});
    EXPECT_TRUE(files.at("\\logs\\resNumbers.log").starts_with("\r\n                         \r\n"));
}

TEST_F(ResultLogs, FailInSilence) {
    files.readOnly = true;
    boxes.yesNoAnswers = {true};
    deleteResults(namesLog, files, boxes);
    appendRecord(files, NamesRecord{{"Ana", "", "", ""}, "mago1.jpg"});
    EXPECT_TRUE(files.contents.empty());
    EXPECT_TRUE(boxes.shown.empty());
}

} // namespace
} // namespace velmoriax::tarot
