// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/tray_tip.h"
#include "shell/windows/ctx_sys_tray.h"
#include "shell/windows/secondary_window.h"
#include "support/window_fixture.h"

#include <QCursor>

namespace velmoriax::shell {
namespace {

struct Line : TipLineSource {
    int calls = 0;
    std::string tipLine(base::DateValue) override { return "line " + std::to_string(++calls); }
};

/// A tooltip window that is only looked for.
struct PlainToolTip : SecondaryWindow {
    explicit PlainToolTip(WindowContext& context) : SecondaryWindow(context) {}
    void load() override {}
};

/// The icon of a module, in a tray that is there.
struct TrayTest : test::WindowFixture {
    TrayTest() {
        options.holders.tooltips = "ToolTips on";
        options.holders.estiloTooltips = "windows xp";
        alerts.birth = {1980, 3, 15};
        subsystems.tipLines = {&line};
        windows.addSecondary("FrmToolTip", [this] { return std::make_unique<PlainToolTip>(context); });
    }
    /// The icon's rectangle, with the pointer on it or away from it.
    void pointerOnIcon(bool on) {
        tray.place = on ? QRect(QCursor::pos() - QPoint(4, 4), QSize(8, 8))
                        : QRect(QCursor::pos() + QPoint(99, 99), QSize(8, 8));
    }
    void rest(int ticks) {
        Q_EMIT tray.pointerMoved();
        for (int i = 0; i < ticks; ++i) fire(control, "TimerTooltip");
    }
    static void fire(CtxSysTray& control, const char* timer) {
        for (QTimer* each : control.findChildren<QTimer*>(QString::fromLatin1(timer)))
            QMetaObject::invokeMethod(each, "timeout");
    }
    std::string balloon() const { return tray.balloons.isEmpty() ? std::string() : tray.balloons.last().toStdString(); }

    Line line;
    QMenu menu;
    CtxSysTray control{context, menu};
};

TEST_F(TrayTest, ABalloonIsShownAfterHalfASecondAndRemovedWithThePointer) {
    tray.arrive();
    control.AddIconToSystray("");
    pointerOnIcon(true);
    rest(4);
    EXPECT_FALSE(tray.balloonShown);
    fire(control, "TimerTooltip");
    EXPECT_TRUE(tray.balloonShown);
    EXPECT_EQ(balloon(), "11/15/2026 (The Sun)\r\nline 1");
    EXPECT_EQ(tray.balloons.first().toStdString(), programName);
    EXPECT_FALSE(tray.silent);
    pointerOnIcon(false);
    fire(control, "TimerTooltip");
    EXPECT_FALSE(tray.balloonShown || state.trayBusy || state.tipShown);
}

TEST_F(TrayTest, TheOptionsChooseSilenceAndStyle) {
    tray.arrive();
    control.AddIconToSystray("");
    pointerOnIcon(true);
    options.holders.modoSilencioso = "mudo";
    rest(5);
    EXPECT_TRUE(tray.silent);
    pointerOnIcon(false);
    fire(control, "TimerTooltip");
    options.holders.estiloTooltips = "personal";
    pointerOnIcon(true);
    rest(5);
    EXPECT_TRUE(windows.loaded("FrmToolTip"));
    EXPECT_FALSE(tray.balloonShown);
    Q_EMIT tray.leftClicked();
    EXPECT_FALSE(windows.loaded("FrmToolTip")) << "it would cover what the click opens";
}

TEST_F(TrayTest, WithTipsOffTheIconHasTheProgramsNameAlone) {
    tray.arrive();
    options.holders.tooltips = "ToolTips off";
    control.AddIconToSystray("");
    pointerOnIcon(true);
    rest(20);
    EXPECT_EQ(tray.tip.toStdString(), programName);
    EXPECT_TRUE(tray.balloons.isEmpty());
    options.holders.tooltips = "ToolTips on";
    control.tooltipsSwitched();
    EXPECT_EQ(tray.tip, "");
    options.holders.tooltips = "ToolTips off";
    control.tooltipsSwitched();
    EXPECT_EQ(tray.tip.toStdString(), programName);
}

TEST_F(TrayTest, WhereThePanelShowsTheTextItIsTheTip) {
    control.AddIconToSystray("");
    QTest::qWait(0);
    EXPECT_EQ(tray.tip, "") << "no panel is there yet";
    tray.arrive(false);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !tray.tip.isEmpty(); }));
    EXPECT_EQ(tray.tip, "11/15/2026 (The Sun)\nline 1");
    control.RemoveIconFromSystray();
    EXPECT_FALSE(tray.shown);
}

TEST_F(TrayTest, AnIconThatIsNotAddedAnswersNothing) {
    tray.arrive();
    state.noTrayAdd = true;
    control.AddIconToSystray("name");
    EXPECT_FALSE(tray.shown) << "the profile list or the compatibility window is open";
    int clicks = 0;
    QObject::connect(&control, &CtxSysTray::MouseUp, [&] { ++clicks; });
    Q_EMIT tray.leftClicked();
    pointerOnIcon(true);
    rest(20);
    EXPECT_EQ(clicks, 0);
    EXPECT_TRUE(tray.balloons.isEmpty());
    state.noTrayAdd = false;
    control.AddIconToSystray("name");
    EXPECT_TRUE(tray.shown);
    Q_EMIT tray.leftClicked();
    Q_EMIT tray.rightClicked();
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(tray.menu, &menu);
}

TEST_F(TrayTest, NoTipOverADescriptionOfACard) {
    tray.arrive();
    control.AddIconToSystray("");
    state.cardDescriptionOpen = true;
    pointerOnIcon(true);
    rest(20);
    EXPECT_TRUE(tray.balloons.isEmpty());
}

// ---- Modules in the tray

class PlainModule : public ModuleWindow {
public:
    PlainModule(WindowContext& context, const ModuleInfo& module) : ModuleWindow(context, module) { buildNavigation(); }

protected:
    void ownLoad() override {}
};

const ModuleInfo module{"Module", "Module", true, {{}, {}, iconMenuOf({})}};

struct ModuleInTray : test::WindowFixture {
    PlainModule& start(const char* minimised) {
        options.setOption(key::iniciarMinimizado, minimised);
        return load<PlainModule>(module, module);
    }
};

TEST_F(ModuleInTray, HiddenAtTheStartItComesBackByTheIcon) {
    tray.arrive();
    PlainModule& window = start("True");
    QTest::qWait(0);
    EXPECT_FALSE(window.isVisible());
    EXPECT_TRUE(tray.shown);
    Q_EMIT tray.leftClicked();
    EXPECT_TRUE(window.isVisible());
    window.close();
    EXPECT_FALSE(window.isVisible());
    EXPECT_TRUE(tray.shown);
}

TEST_F(ModuleInTray, WithoutATrayAHiddenStartShowsTheWindow) {
    PlainModule& window = start("True");
    QTest::qWait(0);
    EXPECT_FALSE(window.isVisible()) << "a panel may still come";
    tray.stillWaiting = false;
    Q_EMIT tray.waitEnded();
    EXPECT_TRUE(window.isVisible());
    ASSERT_TRUE(QTest::qWaitFor([&] { return boxes.shown.size() == 1; })) << "the user learns why";
}

TEST_F(ModuleInTray, ALostTrayBringsAHiddenWindowToTheTaskbar) {
    tray.arrive();
    PlainModule& window = start("False");
    window.close();
    EXPECT_FALSE(window.isVisible());
    tray.loseForGood();
    EXPECT_TRUE(window.isVisible() && window.isMinimized());
}

} // namespace
} // namespace velmoriax::shell
