// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/date_text.h"
#include "base/run_time_error.h"
#include "sky/ingress_search.h"
#include "sky/time_zone_shift.h"
#include "sky/zodiac.h"
#include "support/fakes.h"

namespace velmoriax::sky {
namespace {

using base::DateValue;
using base::dateValueOf;
using State = platform::ZoneInfo::State;

struct ZodiacTest : testing::Test {
    ZodiacTest() {
        files.at("\\fechas-db\\aries.txt") = "3/20/2004 6:49:00-4/19/2004 17:50:00\r\n"
                                             "3/20/2005 12:33:00-4/19/2005 23:37:00\r\n";
        files.at("\\fechas-db\\tauro.txt") = "4/19/2005 23:37:00-5/20/2005 22:47:00\r\n";
        files.at("\\fechas-db\\geminis.txt") = "5/20/2005 22:47:00-6/21/2005 6:46:00\r\n";
        files.at("\\fechas-db\\cancer.txt") = "6/21/2005 6:46:00-7/22/2005 17:41:00\r\n";
        files.at("\\fechas-db\\piscis.txt") = "2/18/2005 13:32:00-3/20/2005 12:33:00\r\n";
    }
    test::FakeFiles files;
    test::FakeZone zone;
    SkyState state;
    SignSources sources{files, zone};

    int signAt(base::CivilDate date, base::CivilTime time) const {
        const auto stay = findSignStay(files, dateValueOf(date, time));
        return stay ? stay->index : -1;
    }
    const SignReading& cardOfDay(base::CivilDate date, base::CivilTime time, std::string_view hemisferio = "Norte") {
        return signoZod(sources, dateValueOf(date, time), hemisferio, state);
    }
};

TEST_F(ZodiacTest, BothLimitsBelongToAStayAndTheFirstMatchWins) {
    EXPECT_EQ(signAt({2005, 3, 20}, {12, 32, 59}), 11);
    EXPECT_EQ(signAt({2005, 3, 20}, {12, 33, 0}), 0) << "the end of Pisces, but Aries is searched first";
    EXPECT_EQ(signAt({2005, 4, 19}, {23, 37, 0}), 0);
    EXPECT_EQ(signAt({2005, 4, 19}, {23, 37, 1}), 1);
    EXPECT_EQ(signAt({2005, 9, 1}, {0, 0, 0}), -1);
    files.at("\\fechas-db\\leo.txt") = "7/22/1850 21:00:00-8/23/1850 4:00:00";
    EXPECT_EQ(signAt({1850, 7, 22}, {22, 0, 0}), 4) << "days before the zero of the date value run forwards as well";
    EXPECT_EQ(signAt({1850, 7, 22}, {20, 0, 0}), -1);
}

TEST_F(ZodiacTest, PassesOverFaultsInTheTables) {
    std::string& aries = files.at("\\fechas-db\\aries.txt");
    const std::string whole = aries;
    aries = "\r\n" + whole;
    EXPECT_EQ(signAt({2005, 4, 1}, {0, 0, 0}), -1) << "an empty line ends the table";
    aries = "no date at all\n2/30/2005-x\n" + whole;
    EXPECT_EQ(signAt({2005, 4, 1}, {0, 0, 0}), 0) << "unreadable dates are passed over; a bare line feed ends a line";
    aries = "3/20/2005 12:33:00-someday\r\n-4/19/2005 23:37:00\r\n";
    EXPECT_EQ(signAt({2005, 4, 1}, {0, 0, 0}), 0) << "the start read before stays in force";
    EXPECT_EQ(signAt({2005, 3, 1}, {0, 0, 0}), 11) << "and so before it another sign is found";
    files.contents.erase(files.directory + "/fechas-db/aries.txt");
    files.unreadable.insert(files.directory + "/fechas-db/tauro.txt");
    EXPECT_EQ(signAt({2005, 6, 1}, {0, 0, 0}), 2) << "missing and unreadable tables lead on to the next sign";
}

TEST_F(ZodiacTest, FixedCalendarDecidesWithoutTables) {
    files.contents.clear();
    const test::Table<base::CivilDate, std::string, const char*, std::string, int> rows{
        {{2026, 1, 1}, "Capricorn", "December 22/January 19", "Capricornio", 9},
        {{2026, 3, 20}, "Pisces", "February 19/March 20", "Piscis", 11},
        {{2026, 3, 21}, "Aries", "March 21/April 19", "Aries", 0},
        {{1850, 6, 21}, "Gemini", "May 21/June 21", "Geminis", 2},
        {{2026, 11, 15}, "Scorpio", "October 23/November 21", "Escorpio", 7},
        {{2026, 12, 20}, "Sagittarius", "November 22/December 21", "Sagitario", 8},
        {{2026, 12, 21}, "Capricorn", "December 22/January 19", "Capricornio", 9}};
    for (const auto& [date, name, tip, picture, index] : rows) {
        const SignReading& sign = cardOfDay(date, {12, 0, 0});
        EXPECT_EQ(sign.label, name);
        EXPECT_EQ(sign.tip, tip);
        EXPECT_EQ(sign.picturePath, files.directory + "\\signos\\" + picture + "_sm.gif");
        EXPECT_EQ(state.currentSignIndex, index);
        EXPECT_FALSE(sign.alertVisible);
        EXPECT_EQ(signoZodCalendar(files, date, "", state).index, index);
        EXPECT_EQ(agent::tipsignzodiac(sources, dateValueOf(date, {23, 59, 59}), state), "Zodiac Sign: " + name);
    }
}

TEST_F(ZodiacTest, CardOfTheDayTellsTheChangeOfSign) {
    zone.info = {State::standard, 300, -60};
    const SignReading& before = cardOfDay({2005, 3, 20}, {7, 32, 0});
    EXPECT_EQ(before.tip, "Pisces: February 18/March 20");
    EXPECT_TRUE(before.alertVisible) << "the end of the stay falls on today";
    const SignReading& after = cardOfDay({2005, 3, 20}, {7, 34, 0});
    EXPECT_EQ(after.tip, "Aries: March 20/April 19");
    EXPECT_EQ(after.alertTip, "Change of sign, click for further information.");
    EXPECT_EQ(after.changeText, "12:33:00");
    EXPECT_EQ(changeOfSignMessage(after, {2005, 3, 20}, zone),
              "Change of sign along the day 3/20/2005 at 7:33:00 (local time).\nAt this time begins the Spring!");
    EXPECT_EQ(agent::tipsignzodiac(sources, dateValueOf({2005, 3, 20}, {7, 34, 0}), state), "Zodiac Sign: Aries (<=>)");
    const SignReading& nextDay = cardOfDay({2005, 3, 21}, {7, 34, 0});
    EXPECT_FALSE(nextDay.alertVisible);
    EXPECT_EQ(nextDay.changeText + nextDay.alertTip, "");
}

TEST_F(ZodiacTest, AnotherDayKeepsTheDateOfTheChange) {
    zone.info = {State::daylight, -120, -60};
    const SignReading& sign = signoZodCalendar(files, {2005, 5, 20}, "", state);
    EXPECT_EQ(sign.tip, "April 19/May 20");
    EXPECT_EQ(sign.changeText, "5/20/2005 22:47:00");
    EXPECT_EQ(changeOfSignMessageCalendar(sign, zone),
              "Change of sign along the day 5/21/2005 at 1:47:00 (local time).\n")
        << "the zone may move the change into the next day";
    EXPECT_EQ(state.currentSignIndex, 1);
    agent::signoZod(sources, dateValueOf({2005, 6, 30}, {12, 0, 0}), state);
    EXPECT_EQ(state.signoText, "Cancer");
    EXPECT_EQ(state.currentSignIndex, 1) << "the agent leaves the windows' sign alone";
}

TEST_F(ZodiacTest, SeasonsFollowTheHemisphereAndStay) {
    const std::string winter = "At this time begins the Winter!";
    EXPECT_EQ(cardOfDay({2005, 6, 21}, {9, 0, 0}, "Sur").seasonText, winter);
    EXPECT_EQ(cardOfDay({2005, 7, 1}, {9, 0, 0}, "Norte").seasonText, winter);
    EXPECT_EQ(cardOfDay({2005, 6, 1}, {9, 0, 0}, "").seasonText, winter);
    EXPECT_EQ(signoZodCalendar(files, {2005, 6, 1}, "", state).seasonText, "At this time begins the Summer!");
    EXPECT_EQ(signoZodCalendar(files, {2005, 6, 1}, "Sur", state).seasonText, winter);
    EXPECT_EQ(cardOfDay({2005, 9, 1}, {9, 0, 0}).seasonText, winter) << "the fixed calendar tells no season";
    clearChange(state.anotherDaySign);
    EXPECT_EQ(state.anotherDaySign.seasonText, "");
}

TEST_F(ZodiacTest, DescriptionsAreReadWholeOrNotSurvived) {
    files.at("\\sigtxt\\acuario.txt") = "El se\xF1or del agua\r\n";
    EXPECT_EQ(signDescription(files, 10), "El señor del agua\r\n");
    EXPECT_THROW(signDescription(files, 11), base::RunTimeError);
}

TEST(TimeZoneShift, UsesTheBiasOfTheStateAndNothingWhenUnknown) {
    test::FakeZone zone;
    const DateValue moment = dateValueOf({2026, 7, 1}, {22, 30, 0});
    zone.info = {State::standard, 300, -60};
    EXPECT_EQ(base::generalText(localToUniversal(moment, zone)), "7/2/2026 3:30:00");
    zone.info.state = State::daylight;
    EXPECT_EQ(base::generalText(localToUniversal(moment, zone)), "7/2/2026 2:30:00");
    EXPECT_EQ(base::generalText(universalToLocal({2, 30, 0}, {2026, 7, 2}, zone)), "7/1/2026 22:30:00");
    zone.info.state = State::unknown;
    EXPECT_EQ(localToUniversal(moment, zone), 0);
    EXPECT_EQ(universalToLocal({2, 30, 0}, {2026, 7, 2}, zone), 0);
}

} // namespace
} // namespace velmoriax::sky
