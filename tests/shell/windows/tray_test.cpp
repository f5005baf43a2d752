// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/tray_tip.h"
#include "shell/windows/ctx_sys_tray.h"
#include "shell/windows/secondary_window.h"
#include "support/window_fixture.h"

#include <QCursor>

namespace velmoriax::shell {
namespace {

using desktop::TrayKind;

/// A line of the tip that counts how often it was worked out.
struct CountedLine : TipLineSource {
    int calls = 0;
    std::function<void()> whileAsked = [] {};
    std::string tipLine(base::DateValue) override {
        whileAsked();
        return "line " + std::to_string(++calls);
    }
};

struct EmptyToolTip : SecondaryWindow {
    explicit EmptyToolTip(WindowContext& context) : SecondaryWindow(context) {}
    void load() override {}
};

/// What one module does with the icon.
struct TrayIcon : test::WindowFixture {
    TrayIcon() {
        options.holders.tooltips = "ToolTips on";
        options.holders.estiloTooltips = "windows xp";
        alerts.birth = {1980, 3, 15};
        subsystems.tipLines = {&line};
        windows.addSecondary("FrmToolTip", [this] { return std::make_unique<EmptyToolTip>(context); });
    }
    QTimer& timer(const char* name) const { return *icon.findChild<QTimer*>(QString::fromLatin1(name)); }
    /// Ticks of a timer; none when it is stopped.
    void tick(const char* name, int ticks = 1) {
        for (int i = 0; i < ticks && timer(name).isActive(); ++i) fire(icon, name);
    }
    /// The pointer comes onto the icon and rests there for some tenths of a second.
    void restOnIcon(int tenths) {
        tray.place = QRect(QCursor::pos() - QPoint(4, 4), QSize(8, 8));
        tray.movePointer();
        tick("TimerTooltip", tenths);
    }
    void leaveIcon() {
        tray.place.translate(100, 100);
        tick("TimerTooltip");
    }
    /// The module adds the icon, in a tray of that kind.
    void addTo(TrayKind kind) {
        tray.arrive(kind);
        icon.AddIconToSystray("");
        QTest::qWait(0); // the text for a panel follows in the event loop
    }
    void switchTooltips(const char* value) {
        options.holders.tooltips = value;
        icon.tooltipsSwitched();
        QTest::qWait(0);
    }
    std::string tip() const { return tray.tip.toStdString(); }

    CountedLine line;
    QMenu menu;
    CtxSysTray icon{context, menu};
};

// ---- Tips over a tray window

TEST_F(TrayIcon, ShowsItsBalloonAfterHalfASecondAndHidesItWithThePointer) {
    addTo(TrayKind::window);
    restOnIcon(4);
    EXPECT_FALSE(tray.balloonShown);
    tick("TimerTooltip");
    EXPECT_TRUE(tray.balloonShown);
    EXPECT_EQ(tray.balloons.value(0).toStdString(), programName);
    EXPECT_EQ(tray.balloons.value(1), "11/15/2026 (The Sun)\r\nline 1");
    EXPECT_FALSE(tray.silent);
    leaveIcon();
    EXPECT_FALSE(tray.balloonShown || state.trayBusy || state.tipShown);
    EXPECT_FALSE(timer("TimerTooltip").isActive()) << "nothing is left to watch";
}

TEST_F(TrayIcon, ShowsTipsInTheStyleOfTheOptions) {
    addTo(TrayKind::window);
    options.holders.modoSilencioso = "mudo";
    restOnIcon(5);
    EXPECT_TRUE(tray.silent);
    leaveIcon();
    options.holders.estiloTooltips = "personal";
    restOnIcon(5);
    EXPECT_TRUE(windows.loaded("FrmToolTip"));
    EXPECT_FALSE(tray.balloonShown);
    leaveIcon();
    EXPECT_FALSE(windows.loaded("FrmToolTip"));
}

TEST_F(TrayIcon, ShowsNoTipOverADescriptionOfACardOrAModuleThatLoads) {
    addTo(TrayKind::window);
    for (bool* flag : {&state.cardDescriptionOpen, &state.viewLoading}) {
        *flag = true;
        restOnIcon(20);
        EXPECT_TRUE(tray.balloons.isEmpty());
        *flag = false;
    }
    options.holders.estiloTooltips = "personal";
    restOnIcon(4);
    state.viewLoading = true;
    tick("TimerTooltip");
    EXPECT_FALSE(windows.loaded("FrmToolTip")) << "the load began while the pointer rested";
}

TEST_F(TrayIcon, ReportsThePointerAndTheEdgeOfThePanel) {
    addTo(TrayKind::window);
    QPoint reported;
    QObject::connect(&icon, &CtxSysTray::MouseMouse, [&](float x, float y) { reported = QPointF(x, y).toPoint(); });
    QCursor::setPos(30, 40);
    taskBar.where = {0, 0, 1280, 30, platform::TaskBarPosition::topEdge};
    state.taskBarAtBottom = true;
    icon.UpdateIcon("a name from before");
    tray.movePointer();
    EXPECT_EQ(reported, QPoint(30, 40));
    EXPECT_FALSE(state.taskBarAtBottom);
    EXPECT_EQ(tip(), "") << "the panel's own tip would cover the program's";
    taskBar.where->edge = platform::TaskBarPosition::bottomEdge;
    tray.movePointer();
    EXPECT_TRUE(state.taskBarAtBottom);
}

TEST_F(TrayIcon, HasOnlyTheProgramsNameWhileTipsAreOff) {
    addTo(TrayKind::window);
    switchTooltips("ToolTips off");
    EXPECT_EQ(tip(), programName);
    restOnIcon(20);
    EXPECT_EQ(tip(), programName);
    EXPECT_TRUE(tray.balloons.isEmpty());
    switchTooltips("ToolTips on");
    EXPECT_EQ(tip(), "");
    restOnIcon(5);
    EXPECT_TRUE(tray.balloonShown);
}

// ---- Clicks

TEST_F(TrayIcon, ReportsClicksWithTheirButton) {
    addTo(TrayKind::window);
    std::vector<std::pair<std::string, int>> events;
    QObject::connect(&icon, &CtxSysTray::MouseUp, [&](int button) { events.emplace_back("up", button); });
    QObject::connect(&icon, &CtxSysTray::DblClick, [&](int button) { events.emplace_back("double", button); });
    tray.click();
    tray.rightClick();
    tray.doubleClick();
    EXPECT_EQ(events, (decltype(events){{"up", 1}, {"up", 2}, {"double", 1}}));
}

TEST_F(TrayIcon, ShowsNoTipAfterAClickUntilThePointerHasLeft) {
    addTo(TrayKind::window);
    for (const int tenths : {3, 5}) { // before the tip and while it is open
        restOnIcon(tenths);
        tray.click();
        EXPECT_FALSE(tray.balloonShown) << "it would cover what the click opens";
        restOnIcon(20);
        EXPECT_FALSE(tray.balloonShown);
        leaveIcon();
    }
    restOnIcon(5);
    EXPECT_TRUE(tray.balloonShown);
}

TEST_F(TrayIcon, ShowsNoTipOverWhatAClickHasOpenedMeanwhile) {
    addTo(TrayKind::window);
    line.whileAsked = [this] { tray.click(); };
    restOnIcon(5);
    EXPECT_FALSE(tray.balloonShown);
}

// ---- The text that a panel shows by itself

TEST_F(TrayIcon, RenewsTheTextOfAPanelEachMinuteWhileTipsAreOn) {
    addTo(TrayKind::item);
    EXPECT_EQ(tip(), "11/15/2026 (The Sun)\nline 1");
    EXPECT_EQ(timer("TimerTipText").interval(), 60'000);
    tick("TimerTipText");
    EXPECT_EQ(tip(), "11/15/2026 (The Sun)\nline 2");
    state.viewLoading = true;
    tick("TimerTipText");
    EXPECT_EQ(line.calls, 2) << "a module loads";
    state.viewLoading = false;
    switchTooltips("ToolTips off");
    tick("TimerTipText");
    EXPECT_EQ(tip(), programName);
    EXPECT_FALSE(timer("TimerTipText").isActive()) << "no minute wakes the program for nothing";
    switchTooltips("ToolTips on");
    EXPECT_EQ(tip(), "11/15/2026 (The Sun)\nline 3");
    icon.RemoveIconFromSystray();
    EXPECT_FALSE(timer("TimerTipText").isActive());
}

TEST_F(TrayIcon, HasNoTextForAPanelBeforeThereIsOneOrWhereItIsATrayWindow) {
    icon.AddIconToSystray("");
    QTest::qWait(0);
    EXPECT_EQ(line.calls, 0) << "the program still waits for a panel";
    tray.arrive(TrayKind::window);
    QTest::qWait(0);
    EXPECT_EQ(line.calls, 0);
}

// ---- Adding and removing

TEST_F(TrayIcon, CutsTextsToWhatATrayTakes) {
    addTo(TrayKind::window);
    const std::string text(300, 'x');
    icon.UpdateIcon(text);
    EXPECT_EQ(tray.tip.size(), 128);
    icon.Popup(text, text, CtxSysTray::informationIcon);
    EXPECT_FALSE(tray.silent);
    icon.Popup(text, text, CtxSysTray::informationIcon | CtxSysTray::noSound);
    EXPECT_TRUE(tray.silent);
    EXPECT_EQ(tray.balloons.value(0).size(), 64);
    EXPECT_EQ(tray.balloons.value(1).size(), 256);
}

TEST_F(TrayIcon, IsNotAddedWhileAWindowOfTheProfilesIsOpen) {
    tray.arrive();
    state.noTrayAdd = true;
    icon.AddIconToSystray("name");
    EXPECT_FALSE(tray.shown);
    int clicks = 0;
    QObject::connect(&icon, &CtxSysTray::MouseUp, [&] { ++clicks; });
    tray.click();
    EXPECT_EQ(clicks, 0) << "the icon of another module was clicked";
    state.noTrayAdd = false;
    icon.AddIconToSystray("name");
    EXPECT_TRUE(tray.shown);
    EXPECT_EQ(tip(), "name");
    EXPECT_EQ(tray.menu, &menu);
    tray.click();
    EXPECT_EQ(clicks, 1);
}

TEST_F(TrayIcon, HidesItsTipWhenItIsRemoved) {
    addTo(TrayKind::window);
    restOnIcon(5);
    icon.RemoveIconFromSystray();
    EXPECT_FALSE(tray.shown || tray.balloonShown || state.tipShown);
    EXPECT_FALSE(timer("TimerTooltip").isActive());
}

TEST_F(TrayIcon, KeepsTheIconOfTheNextModule) {
    QMenu nextMenu;
    CtxSysTray next(context, nextMenu);
    addTo(TrayKind::window);
    icon.RemoveIconFromSystray();
    next.AddIconToSystray("");
    icon.RemoveIconFromSystray();
    EXPECT_EQ(tray.menu, &nextMenu) << "the module before is destroyed after the next one has added its icon";
}

TEST_F(TrayIcon, ShowsNothingWhenItIsRemovedWhileItsTextIsWorkedOut) {
    line.whileAsked = [this] {
        icon.RemoveIconFromSystray();
        tray.tip = "of the next module";
    };
    addTo(TrayKind::item);
    EXPECT_EQ(line.calls, 1);
    EXPECT_EQ(tip(), "of the next module");
    addTo(TrayKind::window);
    restOnIcon(5);
    EXPECT_EQ(line.calls, 2);
    EXPECT_TRUE(tray.balloons.isEmpty());
}

} // namespace
} // namespace velmoriax::shell
