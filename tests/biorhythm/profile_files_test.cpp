// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/run_time_error.h"
#include "biorhythm/profile_files.h"
#include "tests/support/fakes.h"

#include <gtest/gtest.h>

namespace velmoriax::biorhythm {

namespace {

using Code = base::RunTimeError::Code;
constexpr base::CivilDate today{2026, 11, 15};

/// The error of a load with one file's content; nothing when it is read.
template<typename Load>
std::optional<base::RunTimeError> errorOf(Load load) {
    try {
        load();
    } catch (const base::RunTimeError& error) {
        return error;
    }
    return std::nullopt;
}

class ProfileFiles : public testing::Test {
protected:
    test::FakeFiles files;
    BioState state;
};

} // namespace

TEST_F(ProfileFiles, ComeIntoBeingUnsetAndOnlyWhereTheyAreMissing) {
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
    EXPECT_EQ(finalDateOf(state), today) << "a target that is not set is today";
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
    EXPECT_EQ(errorOf([&] { saveBirthTime(files, state, {8, 0, 0}); })->code(), Code::pathFileAccess);
    EXPECT_EQ(files.at("\\horabio.dat"), "7,45\r\n");
}

TEST_F(ProfileFiles, AreReadExactlyOrNotAtAll) {
    struct Row {
        const char* content;
        std::optional<Code> error;
        const char* reason;
    };
    const Row rows[] = {
        {"15,3,1980", std::nullopt, "no line end"},
        {" 15 ,\t3, 1980 \r\n\r\n", std::nullopt, "blanks around the numbers"},
        {"", Code::inputPastEndOfFile, "empty"},
        {"15,3", Code::inputPastEndOfFile, "truncated between numbers"},
        {"15,3,", Code::inputPastEndOfFile, "truncated behind a comma"},
        {"15,3,1980,", Code::typeMismatch, "a field too many"},
        {"15,March,1980", Code::typeMismatch, "a word"},
        {"15.4,3,1980", Code::typeMismatch, "a fraction would have to be rounded"},
        {"15,13,1980", Code::typeMismatch, "no such month"},
        {"31,2,1980", Code::typeMismatch, "no such day"},
        {"15,3,80", Code::typeMismatch, "no year of two digits is completed"},
        {"15,3,32768", Code::overflow, "beyond 16 bits"},
        {"15,3,-99999999999999999999999", Code::overflow, "beyond any number"},
    };
    for (const Row& row : rows) {
        files.at("\\bio.dat") = row.content;
        state = {};
        const auto error = errorOf([&] { loadBirth(files, state); });
        ASSERT_EQ(error.has_value(), row.error.has_value()) << row.reason;
        EXPECT_EQ(birthDateIsSet(state), !error) << row.reason << ": nothing is taken of a file that fails";
        if (!error) continue;
        EXPECT_EQ(error->code(), row.error) << row.reason;
        EXPECT_EQ(error->detail(), "bio.dat") << row.reason;
    }
}

TEST_F(ProfileFiles, NameTheFileThatFails) {
    EXPECT_EQ(errorOf([&] { loadFinalDate(files, state, today); })->message(),
              "Run-time error '53': File not found\nbiofinal.dat");
    files.at("\\biofinal.dat") = "0,0,1";
    EXPECT_EQ(errorOf([&] { loadFinalDate(files, state, today); })->code(), Code::typeMismatch);
    files.at("\\horabio.dat") = "24,0";
    EXPECT_EQ(errorOf([&] { loadBirthTime(files, state); })->detail(), "horabio.dat");
    files.unreadable.insert("/home/ann/velmoriax/horabio.dat");
    EXPECT_EQ(errorOf([&] { loadBirthTime(files, state); })->code(), Code::pathFileAccess);
    createMissingProfileFiles(files);
    EXPECT_EQ(files.at("\\horabio.dat"), "24,0") << "what cannot be read is not replaced by a default";
}

} // namespace velmoriax::biorhythm
