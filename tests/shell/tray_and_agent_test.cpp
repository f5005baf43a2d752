// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/background_agent.h"
#include "shell/popup_places.h"
#include "shell/task_bar_metrics.h"
#include "shell/tip_watch.h"
#include "shell/tray_tip.h"
#include "support/fakes.h"

namespace velmoriax::shell {
namespace {

constexpr std::string_view on = "ToolTips on";
constexpr std::string_view off = "ToolTips off";

/// A pointer moved by hand over an icon.
struct TipWatchTest : testing::Test {
    ShellState state;
    TipWatch watch;
    bool onIcon = true;

    TipWatch::MoveAction move(std::string_view tooltips = on) { return watch.pointerMoved(tooltips, true, state); }
    TipWatch::TickAction tick(std::string_view tooltips = on) { return watch.tick(tooltips, onIcon, state); }
    /// Ticks until something is to be done; how many it took, 0 when nothing came in a minute.
    int ticksUntil(TipWatch::TickAction action) {
        for (int n = 1; n <= 600; ++n)
            if (tick() == action) return n;
        return 0;
    }
};

TEST_F(TipWatchTest, RestOfHalfASecondRaisesOneTipThatGoesWithThePointer) {
    EXPECT_EQ(tick(), TipWatch::TickAction::none) << "nobody has come yet";
    EXPECT_EQ(move(), TipWatch::MoveAction::measure);
    for (int n = 0; n < 4; ++n) EXPECT_EQ(tick(), TipWatch::TickAction::none);
    onIcon = false;
    EXPECT_EQ(tick(), TipWatch::TickAction::takeAway) << "gone in time: the next visit begins afresh";
    onIcon = true;
    move();
    EXPECT_EQ(ticksUntil(TipWatch::TickAction::raise), 5);
    EXPECT_TRUE(state.trayBusy);
    EXPECT_EQ(ticksUntil(TipWatch::TickAction::raise), 0) << "the same tip comes up again";
    onIcon = false;
    state.tipShown = true;
    EXPECT_EQ(tick(), TipWatch::TickAction::takeAway);
    EXPECT_FALSE(state.trayBusy || state.tipShown || watch.wantsTicks(on));
}

TEST_F(TipWatchTest, ClickBlocksUntilThePointerHasLeft) {
    move();
    tick();
    watch.clicked(state);
    EXPECT_FALSE(watch.wantsTicks(on));
    EXPECT_EQ(move(), TipWatch::MoveAction::none) << "nothing is measured for a busy icon";
    EXPECT_EQ(ticksUntil(TipWatch::TickAction::raise), 0);
    onIcon = false;
    EXPECT_EQ(tick(), TipWatch::TickAction::takeAway);
    onIcon = true;
    move();
    EXPECT_EQ(ticksUntil(TipWatch::TickAction::raise), 5);
}

TEST_F(TipWatchTest, BoxThatGivesTheIconFreeLetsTheWaitingTipUp) {
    watch.clicked(state);
    move();
    ticksUntil(TipWatch::TickAction::raise);
    state.trayBusy = false;
    EXPECT_EQ(tick(), TipWatch::TickAction::raise);
}

TEST_F(TipWatchTest, SwitchedOffOrHeldBackItSleeps) {
    EXPECT_EQ(move(off), TipWatch::MoveAction::showName);
    EXPECT_FALSE(watch.wantsTicks(off));
    for (int n = 0; n < 20; ++n) EXPECT_EQ(tick(off), TipWatch::TickAction::none);
    EXPECT_EQ(ticksUntil(TipWatch::TickAction::raise), 5) << "ticks with tips off must not count";

    TipWatch held;
    held.pointerMoved(on, false, state);
    EXPECT_FALSE(held.wantsTicks(on)) << "a module is loading, or a description is open";
}

/// A line that counts how often it is worked out.
struct Line : TipLineSource {
    explicit Line(const char* words) : text(words) {}
    std::string tipLine(base::DateValue) override {
        ++calls;
        return text;
    }
    std::string text;
    int calls = 0;
};

struct TrayTip : testing::Test {
    Line card{"Card of Day: VIII. Justice"};
    Line sign{"Zodiac Sign: Scorpio"};
    std::array<TipLineSource*, 2> sources{&card, &sign};
    const base::DateValue noon = base::dateValueOf({2026, 11, 15}, {12, 0, 0});
};

TEST_F(TrayTip, IsBuiltOnceFromDatePlanetAndALineASource) {
    const std::string lines = "Card of Day: VIII. Justice\r\nZodiac Sign: Scorpio";
    EXPECT_EQ(balloonText({1975, 3, 14}, noon, sources), "11/15/2026 (The Sun)\r\n" + lines);
    const PersonalTip tip = personalTip({1975, 3, 14}, noon + 3, sources);
    EXPECT_EQ(tip.date, "11/18/2026 (Mercury)");
    EXPECT_EQ(tip.lines, lines);
    EXPECT_EQ(sign.calls, 2);
}

TEST_F(TrayTip, AnyOfThreeMarksMeansNoBirthDate) {
    const test::Table<base::CivilDate, const char*> rows{
        {{1900, 1, 1}, "the mark itself"},
        {{1975, 3, 1}, "a real first of March"},
        {{1975, 1, 14}, "a real January"},
        {{1900, 3, 14}, "a real 1900"},
    };
    for (const auto& [birth, why] : rows) {
        EXPECT_EQ(balloonText(birth, noon, sources),
                  "ToolTps dinámicos cuando se actualice la fecha de nacimiento para los biorritmos!")
            << why;
        const PersonalTip tip = personalTip(birth, noon, sources);
        EXPECT_TRUE(tip.date.empty()) << why;
        EXPECT_EQ(tip.lines, "Dinamic ToolTps \r\nwhen the date of birth \r\nbe updated for the biorhythms!");
    }
    EXPECT_EQ(card.calls, 0) << "no line may be worked out";
}

TEST(TaskBarMetrics, ReportAndEdge) {
    test::FakeTaskBar bar;
    ShellState state;
    state.taskBarLocation = 3;
    getTaskBarMetrics(bar, state);
    EXPECT_EQ(state.taskBarLocation, 0) << "a desktop without a panel";
    bar.where = platform::TaskBarPosition{1240, 5, 1280, 800, platform::TaskBarPosition::rightEdge};
    EXPECT_EQ(getTaskBarMetrics(bar, state),
              "TaskBarMetrics In Pixels (not twips)\r\nLeft: 1240, Right: 1280, Bottom: 800, Top: 5\r\n"
              "Width:40\r\nHeight:795\r\nLocation: 2 (0-left, 1-top, 2-right, 3-bottom)");
    EXPECT_EQ(state.taskBarLocation, 2);
}

TEST(PopupPlaces, NotificationTakesItsSizeFromTheLength) {
    using enum NotifBack;
    const test::Table<std::size_t, NotifBack, int> rows{
        {0, small, 120},    {149, small, 120}, {150, middle, 178},
        {265, middle, 178}, {266, large, 243}, {600, large, 243},
    };
    for (const auto& [length, back, height] : rows) {
        EXPECT_EQ(notifSize(length).back, back) << length;
        EXPECT_EQ(notifSize(length).height, height) << length;
    }
}

TEST(PopupPlaces, NotificationStandsOnThePanelOrLeavesItsRoomFree) {
    ScreenMeasures screen{0, 0, 1280, 800, 0, 0};
    EXPECT_EQ(notifLeft(screen, 340), 1280 - 340 - 33);
    EXPECT_EQ(notifStartTop(screen), 800);
    EXPECT_EQ(notifTop(screen, 120), 800 - 120 - 29);
    EXPECT_EQ(notifHiddenTop(screen, 120), 920);
    screen.panelBottom = 24;
    EXPECT_EQ(notifTop(screen, 120), 651) << "a thin panel";
    screen.panelBottom = 44;
    EXPECT_EQ(notifTop(screen, 120), 636) << "a thick panel";
    screen.panelRight = 60;
    EXPECT_EQ(notifLeft(screen, 340), 880);
    const ScreenMeasures second{1280, 100, 1920, 1080, 0, 0};
    EXPECT_EQ(notifTop(second, 120), 1031);
    EXPECT_EQ(notifLeft(second, 340), 2827);
}

TEST(PopupPlaces, PersonalTipStandsOverTheLowestTwentieth) {
    const ScreenMeasures screen{0, 0, 1280, 1000, 0, 30};
    EXPECT_TRUE(personalTipFits(screen, 960, true));
    EXPECT_FALSE(personalTipFits(screen, 950, true)) << "the bound itself is too high";
    EXPECT_FALSE(personalTipFits(screen, 900, true));
    const auto bar = platform::TaskBarPosition{0, 910, 1280, 1000, platform::TaskBarPosition::bottomEdge};
    EXPECT_TRUE(personalTipFits(withTaskBar(screen, bar), 911, true)) << "on a thick panel that hides by itself";
    EXPECT_FALSE(personalTipFits(withTaskBar(screen, bar), 909, true));
    EXPECT_TRUE(personalTipFits(screen, 900, false)) << "a panel elsewhere does not stop it";

    EXPECT_EQ(personalTipTop(screen, 104), 857) << "2150 twips are 143 pixels";
    EXPECT_EQ(personalTipTop(screen, 90), 857);
    EXPECT_EQ(personalTipTop(screen, 160), 810) << "a tall window is on the panel, not over the icon";
    EXPECT_EQ(personalTipLeft(screen, 400, 700), 500);
    EXPECT_EQ(personalTipLeft(screen, 400, 1250), 880) << "whole on the screen";
    EXPECT_EQ(personalTipLeft(screen, 400, 10), 0);
    const ScreenMeasures betweenPanels{0, 0, 1280, 1000, 50, 0, 60};
    EXPECT_EQ(personalTipLeft(betweenPanels, 400, 30), 60) << "not over the icon";
    EXPECT_EQ(personalTipLeft(betweenPanels, 400, 1260), 830);
}

struct BackgroundAgent : testing::Test {
    void start(base::CivilTime time) { startUptime(agent, base::dateValueOf({2026, 11, 15}, time)); }

    /// Ticks once a second from the moment on.
    void run(base::CivilDate date, base::CivilTime from, int seconds) {
        const int first = from.hour * 3600 + from.minute * 60 + from.second;
        for (int second = first; second < first + seconds; ++second) tick(date, second);
    }
    void tick(base::CivilDate date, int second) {
        const base::CivilDate day = base::civilDateOfDay(base::dayNumber(date) + second / 86400);
        timeUpTick(agent, base::dateValueOf(day, {second / 3600 % 24, second / 60 % 60, second % 60}), false);
    }

    AgentState agent;
};

TEST_F(BackgroundAgent, UptimeGoesOnOverMidnightAndDaysCount) {
    start({23, 0, 0});
    run({2026, 11, 15}, {23, 0, 0}, 3601);
    EXPECT_EQ(agent.LblTime, "0:00:00");
    EXPECT_EQ(agent.LblUptime, "22:00:01") << "the text of a negative time in the very tick of midnight";
    run({2026, 11, 16}, {0, 0, 1}, 1);
    EXPECT_EQ(agent.LblUptime, "1:00:00");
    EXPECT_EQ(agent.LblDias, "0d ");
    run({2026, 11, 16}, {0, 0, 2}, 23 * 3600);
    EXPECT_EQ(agent.LblDias, "1d ");
    run({2026, 11, 16}, {23, 0, 2}, 2 * 86400);
    EXPECT_EQ(agent.LblDias, "3d ");
}

TEST_F(BackgroundAgent, ABusySecondBeforeMidnightLosesTheStretchOfTheDay) {
    start({23, 59, 0});
    for (const int second : {86398, 86400, 86405}) tick({2026, 11, 15}, second);
    EXPECT_EQ(agent.LblUptime, "0:00:05");
}

TEST_F(BackgroundAgent, TheNotificationStandsThirtyTicks) {
    const base::DateValue now = 46341.5;
    for (int i = 1; i < 30; ++i) EXPECT_FALSE(timeUpTick(agent, now, true)) << i;
    EXPECT_TRUE(timeUpTick(agent, now, true));
    EXPECT_EQ(agent.notifTicks, 0);
    for (int i = 0; i < 20; ++i) timeUpTick(agent, now, true);
    EXPECT_FALSE(timeUpTick(agent, now, false)) << "closed earlier";
    EXPECT_EQ(agent.notifTicks, 0) << "a count does not go on with the next notification";
}

TEST_F(BackgroundAgent, AlertsRunEverySixtiethHalfMinute) {
    for (int round = 0; round < 2; ++round) {
        for (int i = 1; i < 60; ++i) EXPECT_FALSE(timerBioTick(agent));
        EXPECT_TRUE(timerBioTick(agent));
    }
}

} // namespace
} // namespace velmoriax::shell
