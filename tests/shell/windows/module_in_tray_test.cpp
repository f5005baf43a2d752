// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/window_fixture.h"

namespace velmoriax::shell {
namespace {

using desktop::TrayKind;

class PlainModule : public ModuleWindow {
public:
    PlainModule(WindowContext& context, const ModuleInfo& module) : ModuleWindow(context, module) { buildNavigation(); }

protected:
    void ownLoad() override {}
};

constexpr std::array entries{commandEntry("MnuAbout", "About", Command::about)};
const ModuleInfo module{"Module", "Module", true, {{}, {}, iconMenuOf(entries)}};

struct ModuleInTray : test::WindowFixture {
    PlainModule& start(const char* minimised) {
        options.setOption(key::iniciarMinimizado, minimised);
        PlainModule& window = load<PlainModule>(module, module);
        QTest::qWait(0); // whether a window that starts hidden can be reached is decided in the event loop
        return window;
    }
    static bool isOnTaskBar(const QWidget& window) { return window.isVisible() && window.isMinimized(); }
    std::size_t warnings() const {
        QTest::qWait(0);
        return boxes.shown.size();
    }
};

TEST_F(ModuleInTray, ReturnsByAClickOrADoubleClickAndOpensItsMenuByTheRightButton) {
    tray.arrive();
    PlainModule& window = start("True");
    EXPECT_FALSE(window.isVisible());
    tray.rightClick();
    EXPECT_TRUE(tray.menu->isVisible());
    EXPECT_FALSE(window.isVisible());
    tray.menu->close();
    tray.click();
    EXPECT_TRUE(window.isVisible());
    window.close();
    EXPECT_FALSE(window.isVisible());
    EXPECT_TRUE(tray.shown);
    tray.doubleClick();
    EXPECT_TRUE(window.isVisible());
}

TEST_F(ModuleInTray, IsShownAfterAHiddenStartOnceNoTrayCanBringItBack) {
    PlainModule& window = start("True");
    EXPECT_FALSE(window.isVisible()) << "a panel may still start";
    tray.endWait();
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(warnings(), 1U);
}

TEST_F(ModuleInTray, IsShownAtOnceWhenItIsKnownThatThereIsNoTray) {
    tray.endWait();
    EXPECT_TRUE(start("True").isVisible());
    EXPECT_EQ(warnings(), 1U);
}

TEST_F(ModuleInTray, StaysHiddenWhenAPanelStartsLate) {
    PlainModule& window = start("True");
    tray.arrive(TrayKind::item);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(warnings(), 0U);
}

TEST_F(ModuleInTray, IsOnTheTaskBarWhileTheTrayIsLost) {
    tray.arrive();
    PlainModule& window = start("False");
    tray.lose();
    EXPECT_FALSE(window.isMinimized()) << "it was not hidden";
    EXPECT_EQ(warnings(), 0U);
    tray.comeBack();
    window.close();
    EXPECT_FALSE(window.isVisible());
    tray.lose();
    EXPECT_TRUE(isOnTaskBar(window));
    EXPECT_EQ(warnings(), 1U);
    window.close();
    EXPECT_TRUE(isOnTaskBar(window));
    EXPECT_EQ(warnings(), 1U) << "the user is informed once";
}

TEST_F(ModuleInTray, IsMinimisedToWhereTheOptionsSayAndATrayAllows) {
    tray.arrive();
    PlainModule& window = start("False");
    options.holders.minimizeTo = word::systray;
    window.showMinimized();
    QTest::qWait(0);
    EXPECT_FALSE(window.isVisible());
    tray.click();
    EXPECT_FALSE(window.isMinimized());
    options.holders.minimizeTo = "toolbar";
    window.showMinimized();
    QTest::qWait(0);
    EXPECT_TRUE(isOnTaskBar(window));
}

TEST_F(ModuleInTray, IsOnTheTaskBarWithoutAWarningWhileAPanelMayStillStart) {
    PlainModule& window = start("False");
    window.close();
    EXPECT_TRUE(isOnTaskBar(window));
    EXPECT_EQ(warnings(), 0U);
}

} // namespace
} // namespace velmoriax::shell
