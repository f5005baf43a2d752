// SPDX-License-Identifier: GPL-3.0-or-later
#include "day_fixture.h"

namespace velmoriax::tarot {
namespace {

using Hub = DayFixture;

TEST_F(Hub, StartsWithAnAlertAndRunsTheNextAfterHalfAnHour) {
    option(shell::key::nivelAlertas.data(), "Only actual situation");
    start();
    EXPECT_TRUE(files.has("\\biofinal.dat")) << "files of a first start come into being";
    ASSERT_TRUE(QTest::qWaitFor([&] { return !notification.texts.empty(); })) << "when the first window is shown";
    EXPECT_TRUE(notification.texts[0].starts_with("Physical: "));
    EXPECT_FALSE(modules.biorhythms.alerts.startupAlert);

    options.holders.alertLevel = "maxi";
    modules.biorhythms.alerts.manualAlert = true;
    modules.biorhythms.alerts.lastAlertKey = "what the last run told";
    for (int tick = 0; tick < 60; ++tick) fire(hub, "TimerBio");
    EXPECT_EQ(notification.texts.size(), 2U);
    EXPECT_FALSE(modules.biorhythms.alerts.manualAlert);
}

TEST_F(Hub, TakesTheNotificationAwayAfterItsTimeAndReadsNoFileForTheClock) {
    start();
    notification.open = state.notifOpen = true;
    files.contents.clear();
    run({2026, 11, 15}, {12, 0, 1}, 29);
    EXPECT_TRUE(notification.isOpen());
    run({2026, 11, 15}, {12, 0, 30}, 1);
    EXPECT_FALSE(notification.isOpen());
}

TEST_F(Hub, TheTipIsWorkedOutWithOrWithoutAWindow) {
    option(shell::key::moduloInicial.data(), "Another Day...");
    start();
    const auto& lines = modules.subsystems.tipLines;
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(lines[0]->tipLine(clock.now()), "Card of Day: XVIII. The Moon");
    EXPECT_EQ(lines[1]->tipLine(clock.now()), "Zodiac Sign: Scorpio");
    EXPECT_TRUE(lines[2]->tipLine(clock.now()).starts_with("Biorhythms (avg.): "));
    EXPECT_EQ(lines[3]->tipLine(clock.now()), "Moon Phase(illum.): 31.47 % (>)");
}

TEST_F(Hub, LivesWithoutANotificationAndWithAClockThatIsSetBack) {
    modules.setNotification(nullptr);
    start();
    state.notifOpen = true;
    run({2026, 11, 15}, {12, 0, 0}, 40);
    run({2026, 11, 14}, {3, 0, 0}, 5);
    for (int tick = 0; tick < 61; ++tick) fire(hub, "TimerBio");
    EXPECT_EQ(modules.agent.LblTime, "3:00:04");
}

TEST_F(Hub, TheTextOfAPanelChangesNoFiguresAndSurvivesASpoiltFile) {
    start();
    modules.biorhythms.bio.lived = 1234;
    const auto& lines = modules.subsystems.tipLines;
    const std::string line = lines[2]->quietTipLine(clock.now());
    EXPECT_TRUE(line.starts_with("Biorhythms (avg.): "));
    EXPECT_EQ(modules.biorhythms.bio.lived, 1234);
    files.at("\\bio.dat") = "rubbish";
    EXPECT_NO_THROW(lines[2]->quietTipLine(clock.now()));
    EXPECT_THROW(lines[2]->tipLine(clock.now()), base::RunTimeError);
}

} // namespace
} // namespace velmoriax::tarot
