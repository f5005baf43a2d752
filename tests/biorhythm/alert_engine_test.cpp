// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/run_time_error.h"
#include "biorhythm/alert_engine.h"
#include "biorhythm/cycle_engine.h"
#include "biorhythm/profile_files.h"
#include "support/fakes.h"

#include <cmath>
#include <regex>

namespace velmoriax::biorhythm {
namespace {

/// Emotional is at -9.74 % and falling; there is no other message. A day later there is none at all.
const base::DateValue critical = base::dateValueOf({2026, 6, 20}, {18, 30, 0});
const base::DateValue quiet = critical + 1;

/// The half-hours of ten years, counted from 0.
constexpr int halfHours = 10 * 365 * 48;
base::DateValue halfHour(int number) {
    static const int firstDay = base::dayNumber({1985, 1, 1});
    return firstDay + number / 48.0;
}

struct AlertEngine : testing::Test {
    AlertEngine() {
        setBirthDate(state, {1980, 3, 15});
        setBirthTime(state, {7, 45, 0});
    }

    void run(std::string_view level, base::DateValue now) {
        alertasbio(alerts, state, {level, now, base::civilDateOf(now)}, {notification, sounds});
    }

    BioState state;
    AlertState alerts;
    test::FakeNotification notification;
    test::FakeSounds sounds;
};

TEST(AlertMessages, BeginAPhaseAtATurningPointWithItsTies) {
    const auto phase = [](float back, float now, float next) {
        return phaseMessages({{0, back}, {0, now}, {0, next}})[emotional];
    };
    EXPECT_EQ(phase(-1, -1, -0.99F), "Your emotional cycle begins an ascending phase!");
    EXPECT_EQ(phase(1, 1, 0.99F), "Your emotional cycle begins a descending phase!");
    EXPECT_EQ(phase(0.98F, 1, 1), "") << "the turn is after the next hour";
    EXPECT_EQ(phaseMessagesJoined({"a", "", "b", ""}), "a\r\nb");
}

TEST(AlertMessages, NameTheFirstCriticalCycleThatChanges) {
    const auto critical = [](CycleValues now, CycleValues next) { return criticalMessage({{}, now, next}); };
    EXPECT_EQ(critical({0.05F, 0.01F, 1, 1}, {0.04F, 0.02F, 1, 1}),
              "Your physical cycle enter in a critical period and advance toward a passive phase, so take it easy!");
    EXPECT_EQ(critical({0.1F, 0.01F, 1, 1}, {0.09F, 0.02F, 1, 1}),
              "Your emotional cycle enter in a critical period and advance toward an active phase, begin to put the "
              "direct!")
        << "the bound itself is not critical";
    EXPECT_EQ(
        critical({-0.1F, 0, std::nextafter(-0.1F, 0.0F), 1}, {0, 0, 0, 1}),
        "Your intellectual cycle enter in a critical period and advance toward an active phase, mind begins to be "
        "in form!")
        << "the next number is, and a cycle that does not change is skipped";
}

TEST(AlertMessages, CompareACyclesPresentValueWithTheOthersNext) {
    const auto crossing = [](CycleValues now, CycleValues next) { return crossingMessage({{}, now, next}); };
    EXPECT_EQ(crossing({0.50F, 0, 0.505F, 0}, {0.51F, 0, 0.495F, 0}),
              "Crossing upward physical cycle to intellectual, the brute force imposes over mind!");
    EXPECT_EQ(crossing({0.50F, 0, 0.52F, 0}, {0.51F, 0, 0.505F, 0}), "")
        << "they cross within the hour, but the other stays above the present value";
    EXPECT_EQ(crossing({0.50F, 0, 0.495F, 0}, {0.49F, 0, 0.505F, 0}),
              "Crossing downward physical cycle to intellectual, mind imposes over strength!");
    EXPECT_EQ(crossing({0, 0.50F, 0.495F, 0.495F}, {0, 0.49F, 0.505F, 0.505F}),
              "Crossing downward emotional cycle to intellectual, mind overcomes feelings!")
        << "the first of two in the table's order";
}

TEST(AlertHead, IsBuiltByEachLevelFromEachCombination) {
    const std::array<AlertMessages, 8> combinations{{{},
                                                     {{"P"}, "", ""},
                                                     {{}, "C", ""},
                                                     {{}, "", "X"},
                                                     {{"P"}, "C", ""},
                                                     {{"P"}, "", "X"},
                                                     {{}, "C", "X"},
                                                     {{"P"}, "C", "X"}}};
    const test::Table<const char*, std::array<std::string_view, 8>> heads{
        // | is a line break
        {"zero", {"", "P", "C", "X", "P|C", "P|X", "C|X", "P|C|X"}},
        {"solo", {"", "", "", "", "", "", "", ""}},
        {"bas1", {"", "P", "", "", "P", "P", "", "P"}},
        {"bas2", {"", "", "C", "", "C", "", "C", "C"}},
        {"bas3", {"", "", "", "X", "", "X", "X", "X"}},
        {"med1", {"", "P", "C|", "", "C|P", "P", "C|", "C|P"}},
        {"med2", {"", "", "C|", "X", "C|", "X", "C|X", "C|X"}},
        {"med3", {"", "P", "", "X|", "P", "X|P", "X|", "X|P"}},
        {"maxi", {"", "P", "C", "X", "P|C", "P|X", "C|X", "P|C|X"}},
    };
    for (const auto& [level, texts] : heads)
        for (std::size_t i = 0; i < combinations.size(); ++i) {
            const std::string head = alertHead(level, combinations[i], "");
            EXPECT_EQ(std::regex_replace(head, std::regex("\r\n"), "|"), texts[i]) << level << ' ' << i;
        }
}

// A cycle of p days has its troughs at the ages p * (n + 3/4) and its peaks at p * (n + 1/4).
TEST_F(AlertEngine, ReportsEachTurningPointOfTenYearsOnceAndInItsHour) {
    const base::DateValue birth = base::dateValueOf({1980, 3, 15}, {7, 45, 0});
    const test::Table<const char*, double, double> turns{
        {"Your physical cycle begins an ascending", 23, 0.75},  {"Your physical cycle begins a descending", 23, 0.25},
        {"Your emotional cycle begins an ascending", 28, 0.75}, {"Your emotional cycle begins a descending", 28, 0.25},
        {"Your intuitive cycle begins an ascending", 38, 0.75}, {"Your intuitive cycle begins a descending", 38, 0.25},
    };
    std::vector<std::vector<double>> ages(turns.size()); // at the first alert of each turning point
    std::string before;
    for (int i = 0; i < halfHours; ++i) {
        run("maxi", halfHour(i));
        const std::string text = notification.texts.empty() ? std::string() : notification.texts.back();
        for (std::size_t turn = 0; turn < turns.size(); ++turn) {
            const char* message = std::get<0>(turns[turn]);
            const bool isNew = text.find(message) != text.npos && before.find(message) == before.npos;
            if (isNew) ages[turn].push_back(halfHour(i) - birth);
        }
        before = text;
    }
    for (std::size_t turn = 0; turn < turns.size(); ++turn) {
        const auto& [message, period, phase] = turns[turn];
        EXPECT_NEAR(static_cast<double>(ages[turn].size()), halfHours / 48.0 / period, 1) << message;
        for (const double age : ages[turn]) {
            const double hoursOff = (age / period - phase - std::round(age / period - phase)) * period * 24;
            ASSERT_LE(std::abs(hoursOff), 1.6) << message << " at " << age << " days";
        }
    }
}

TEST_F(AlertEngine, OpensAtStartByHandAndOnANewKeyAlone) {
    run("zero", critical);
    EXPECT_EQ(state.lived, 0) << "on level zero nothing is computed";
    run("solo", critical);
    EXPECT_TRUE(notification.texts.empty()) << "solo shows nothing on a tick";
    alerts.startupAlert = true;
    run("solo", critical);
    run("zero", critical);
    EXPECT_EQ(notification.texts.size(), 1U);
    alerts.startupAlert = false;
    EXPECT_TRUE(notification.texts.back().starts_with("Physical: ")) << "without the rule of hyphens";
    run("bas3", critical);
    EXPECT_EQ(notification.texts.size(), 1U) << "the start kept the key";
    run("bas3", quiet);
    EXPECT_EQ(notification.texts.size(), 2U) << "the end of a critical period is shown by the value lines";
    run("bas3", quiet);
    EXPECT_EQ(notification.texts.size(), 2U);
    notification.open = notification.opens = false;
    run("bas2", critical);
    EXPECT_EQ(notification.texts.size(), 3U);
    EXPECT_EQ(notification.texts.back(), "Your emotional cycle enter in a critical period and advance toward a passive "
                                         "phase, better forget of feelings!\r\n"
                                         "---------------------------------------------\r\n"
                                         "Physical: -97.53 % (falling)\r\nEmotional: -9.74 % (falling)\r\n"
                                         "Intellectual: 44.72 % (rising)\r\nIntuitive: -94.23 % (falling)");
    EXPECT_EQ(sounds.played, std::vector<std::string>(2, "Url.wav")) << "no sound when the notification is not open";
}

TEST_F(AlertEngine, UsesTheDateOfTheViewWhenRunByHand) {
    const AlertOutlets outlets{notification, sounds};
    const base::DateValue now = base::dateValueOf({2026, 11, 15}, {18, 30, 0});
    alertByHand(alerts, state, {"zero", now, {2026, 6, 20}}, outlets);
    EXPECT_NE(notification.texts.back().find("Emotional: -9.74 % (falling)"), std::string::npos);
    EXPECT_EQ(alerts.lastAlertKey, "") << "a run by hand leaves the key alone";
    state = {};
    alerts = {};
    run("maxi", now);
    EXPECT_EQ(notification.texts.size(), 1U) << "without a birth date";
    EXPECT_TRUE(helpIsDue(alerts, state));
    alertByHand(alerts, state, {"maxi", now, {2026, 6, 20}}, outlets);
    const std::string help = "- Insert the birth date to calculate biorhythms\r\n"
                             "- In options you can change the level of alerts\r\n"
                             "- Biorhythms will update every 30 minutes";
    EXPECT_EQ(notification.texts.back(), help);
    setBirthDate(state, {1980, 3, 15});
    run("solo", now);
    EXPECT_EQ(notification.texts.back(), help + valueLines(state))
        << "solo has no head: it adds to the text that is there";
}

TEST_F(AlertEngine, TakesTheTipsBirthDateFromTheFileAndItsTimeFromTheState) {
    test::FakeFiles files;
    EXPECT_THROW(biotip(files, state, alerts, 0), base::RunTimeError);
    createMissingProfileFiles(files);
    alerts.bioTipText = "as before";
    biotip(files, state, alerts, critical);
    EXPECT_EQ(alerts.bioTipText, "as before");
    files.at("\\bio.dat") = "15,3,1980\r\n";
    biotip(files, state, alerts, critical);
    EXPECT_EQ(alerts.bioTipText, "Biorhythms (avg.): -39.20 % (<)") << "born at 7:45, not at the file's 12:00";
}

} // namespace
} // namespace velmoriax::biorhythm
