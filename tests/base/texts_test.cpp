// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/date_text.h"
#include "base/number_text.h"
#include "base/percent.h"
#include "base/rounding.h"
#include "base/run_time_error.h"
#include "base/text_lines.h"
#include "base/windows1252.h"
#include "support/helpers.h"

#include <limits>

namespace velmoriax::base {
namespace {

TEST(Rounding, TiesGoToTheEvenNeighbour) {
    for (const auto& [value, rounded] : test::Table<double, int>{{0.5, 0}, {1.5, 2}, {-2.5, -2}})
        EXPECT_EQ(nearest(value), rounded);
    EXPECT_EQ(nearestInt16(32767.4), 32767);
    for (const double outside : {32767.5, -32768.6, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_THROW(nearestInt16(outside), RunTimeError) << outside;
}

TEST(NumberText, FixedDecimalsRoundTheExactExpansionAwayFromZero) {
    const test::Table<double, int, const char*, const char*> rows{
        {0.125, 2, "0.13", "exactly on the half"},
        {-0.125, 2, "-0.13", "and away from zero below it"},
        {1.005, 2, "1.00", "below the half in binary, though it prints as 1.005"},
        {2.5, 0, "3", "no even neighbour here"},
        {-0.004, 2, "0.00", "never a negative zero"},
        {0.5, 7, "0.5000000", "padding"},
        {1e15, 2, "1000000000000000.00", "large"},
        {4503599627370497.5, 0, "4503599627370498", "the largest halves"},
    };
    for (const auto& [value, decimals, text, why] : rows) EXPECT_EQ(formatFixed(value, decimals), text) << why;
}

TEST(NumberText, EmptyForWhatRoundsToZeroAndPlainWithoutAnExponent) {
    for (const auto& [value, text] :
         test::Table<double, const char*>{{0.4999, ""}, {-0.4, ""}, {0.5, "1"}, {99.5, "100"}})
        EXPECT_EQ(formatWholeOrEmpty(value), text);
    EXPECT_EQ(plainNumberText(75.3F), "75.3") << "the fewest digits that read back";
    EXPECT_EQ(plainNumberText(1e6F), "1000000");
}

TEST(NumberText, LeadingNumberReadsTheBeginningOfAText) {
    EXPECT_EQ(leadingNumber("  -12.5abc"), -12.5);
    EXPECT_EQ(leadingNumber("+7"), 7);
    EXPECT_EQ(leadingNumber("1.2.3"), 1.2);
    for (const char* none : {"", "   ", "abc", "-", "."}) EXPECT_EQ(leadingNumber(none), 0) << none;
    EXPECT_EQ(wholeNumber(" 12 "), 12);
    for (const char* none : {"", "1 2", "12a", "99999999999999999999"}) EXPECT_FALSE(wholeNumber(none)) << none;
}

TEST(DateText, FormsAreFixed) {
    EXPECT_EQ(shortDateText({2026, 1, 5}), "1/5/2026");
    EXPECT_EQ(timeText(CivilTime{0, 0, 1}), "0:00:01");
    EXPECT_EQ(timeText(-0.25), "6:00:00");
    EXPECT_EQ(generalText(46341.5), "11/15/2026 12:00:00");
    EXPECT_EQ(longDateTextWithoutComma({2026, 11, 15}), "Sunday, November 15 2026");
    EXPECT_EQ(weekdayRuler(5), "Jupiter");
    for (const int outside : {0, 13}) EXPECT_EQ(monthNameEnglish(outside), "");
    EXPECT_EQ(monthOfEnglishName("march"), std::nullopt) << "month names are matched exactly";
}

TEST(DateText, ReadsMomentsAndNothingElse) {
    EXPECT_EQ(readDateTime(" 3/20/2005  12:33:00 "), dateValueOf({2005, 3, 20}, {12, 33, 0}));
    EXPECT_EQ(readDateTime("7:45"), dateValueOf(CivilTime{7, 45, 0}));
    for (const char* bad : {"", "3/20", "13/1/2005", "2/29/2001", "3/20/2005 24:00:00", "3/20/2005 x", "a/b/c",
                            "1/2/3/4", "3/20/2005 12:33:00 1", "-3/20/2005"})
        EXPECT_FALSE(readDateTime(bad)) << bad;
}

TEST(Windows1252, EveryByteComesBackAndWhatTheCodePageLacksIsMarked) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
    EXPECT_EQ(toWindows1252(fromWindows1252(all)), all);
    EXPECT_EQ(toWindows1252("Mari\xCC\x81"), toWindows1252("Mar\xC3\xAD")) << "decomposed i with acute";
    EXPECT_EQ(toWindows1252("n\xCC\x83"), "\xF1");
    EXPECT_EQ(toWindows1252("Nya\xCC\x8A"), "Ny\xE5") << "a with the ring above, which is no a";
    EXPECT_EQ(toWindows1252("€"), "\x80");
    EXPECT_EQ(toWindows1252("→😀"), "??");
    EXPECT_EQ(toWindows1252("a\xFF\xC3"), "a??") << "broken UTF-8";
    EXPECT_EQ(toWindows1252("\xCC\x81"), "?") << "an accent alone";
    EXPECT_EQ(lowerWindows1252(toWindows1252("ÁÑŠ×ß")), toWindows1252("áñš×ß"));
}

TEST(TextLines, SplitAtLineFeedsOrAtAnyEndAndLoseNoByte) {
    using Ends = LineEnds;
    const test::Table<Ends, std::vector<std::string>> rows{
        {Ends::feeds, {"a", "\r\n", "", "\n", "b\rc", "\r", "", ""}},
        {Ends::any, {"a", "\r\n", "", "\n", "b", "\r", "c", "\r"}},
    };
    for (const auto& [ends, expected] : rows) {
        std::string_view rest = "a\r\n\nb\rc\r";
        std::vector<std::string> parts;
        while (parts.size() < expected.size()) {
            const Line line = takeLine(rest, ends);
            parts.insert(parts.end(), {std::string(line.text), std::string(line.end)});
        }
        EXPECT_EQ(parts, expected);
    }
}

TEST(TextLines, TrimsTheNamedCharactersAtBothEnds) {
    EXPECT_EQ(trimmed("  a b\t "), "a b\t") << "the space alone by default";
    EXPECT_EQ(trimmed(" \ta\r\n", " \t\r\n"), "a");
    EXPECT_EQ(trimmed("   "), "");
}

TEST(PercentOf, ItsOddAnswers) {
    EXPECT_EQ(percentOf(25, 50), 50.0F);
    EXPECT_EQ(percentOf(51, 50), -1.0F) << "a part above the whole";
    EXPECT_EQ(percentOf(0, 50), 0.0F);
    EXPECT_EQ(percentOf(0, -1), -1.0F) << "the first test wins";
    EXPECT_EQ(percentOf(-1, 0), 0.0F) << "no finite result";
}

} // namespace
} // namespace velmoriax::base
