// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/windows/frm_about.h"
#include "shell/windows/second_timer.h"
#include "shell/windows/window_place.h"
#include "support/window_fixture.h"

#include <QDateTime>
#include <QPushButton>
#include <QScreen>

namespace velmoriax::shell {
namespace {

/// A module without work of its own, which writes down what happens to it.
class PlainModule : public ModuleWindow {
public:
    PlainModule(Process& process, Module module, std::vector<std::string>& story) :
        ModuleWindow(process, module), name_(windowNameOf(module)), story_(story) {
        buildNavigation();
    }

protected:
    void ownLoad() override {
        EXPECT_TRUE(record().shell.viewLoading);
        story_.push_back(name_ + " loads");
    }
    void ownCommand(std::string_view name) override { story_.push_back(name_ + " " + std::string(name)); }
    void onUnload() override { story_.push_back(name_ + " unloads"); }

private:
    std::string name_;
    std::vector<std::string>& story_;
};

struct ModuleWindowTest : test::WindowFixture {
    ModuleWindowTest() {
        for (const ModuleRow& row : modules)
            windows.addModule(row.module, [this, module = row.module](Process& p) -> ModuleWindow* {
                return new PlainModule(p, module, story);
            });
    }

    ModuleWindow& open(Module module) { return windows.touch(module, process); }

    std::vector<std::string> story;
};

TEST_F(ModuleWindowTest, EveryPopupEntryHandsOverToItsModuleAlone) {
    for (const ModuleRow& row : modules)
        for (const MenuEntry& entry : navigationOf(row.module).iconMenu.entries) {
            if (entry.command != Command::goTo) continue;
            open(row.module).menuAction(entry.name)->trigger();
            ASSERT_EQ(windows.loadedModules().size(), 1U) << row.windowName << " by " << entry.name;
            EXPECT_EQ(windows.loadedModule()->module(), entry.target) << row.windowName << " by " << entry.name;
            EXPECT_TRUE(windows.loadedModule()->isVisible());
            windows.loadedModule()->unloadAtExit();
        }
}

TEST_F(ModuleWindowTest, AHandOverLoadsAndShowsItsTargetBeforeTheSourceUnloads) {
    files.at("\\opciones.ini") = "[opciones]\r\nIniciar Minimizado=True\r\n";
    ModuleWindow& first = open(Module::names);
    EXPECT_FALSE(first.isVisible()) << "at the start the option counts";
    first.handOverTo(Module::oracle);
    EXPECT_TRUE(windows.loadedModule()->isVisible()) << "and no more after it";
    EXPECT_EQ(story, (std::vector<std::string>{"FrmName loads", "Frmoracle loads", "FrmName unloads"}));
    EXPECT_FALSE(record.shell.viewLoading);
}

TEST_F(ModuleWindowTest, TheStepOfAModuleChangeSoundsButNotTheExit) {
    files.at("\\opciones.ini") = "[opciones]\r\nBackground Sound=SiBgSound\r\n";
    open(Module::names).handOverTo(Module::oracle);
    EXPECT_EQ(sounds.played, std::vector<std::string>{"boop.wav"});
    windows.loadedModule()->UnloadAllForms();
    EXPECT_EQ(sounds.played.size(), 1U);
    EXPECT_TRUE(windows.loadedModules().empty());
    EXPECT_TRUE(record.shell.closingAll);
}

TEST_F(ModuleWindowTest, WithoutATrayHidingAndClosingBecomeMinimising) {
    ModuleWindow& window = open(Module::names);
    window.close();
    EXPECT_TRUE(window.isVisible() && window.isMinimized()) << "it has to stay within reach";
    EXPECT_EQ(windows.loadedModules().size(), 1U);
    EXPECT_EQ(story.back(), "FrmName loads") << "a close is no unload";
    window.showNormalState();
    EXPECT_FALSE(window.isMinimized());
}

TEST_F(ModuleWindowTest, MenuEntriesReachTheirWindow) {
    open(Module::numbers).menuAction("MnuDelResults")->trigger();
    EXPECT_EQ(story.back(), "frmVelmoriax MnuDelResults");
    windows.loadedModule()->menuAction("Mnucont")->trigger();
    EXPECT_EQ(opener.opened, std::vector<std::string>{"/home/ann/velmoriax/Velmoriax.html"});
}

TEST_F(ModuleWindowTest, AWindowBesideAModuleComesUpOverItsMiddle) {
    windows.addSecondary("frmAbout", [](Process& p) { return new frmAbout(p); });
    ModuleWindow& module = open(Module::numbers);
    module.resize(500, 400);
    module.move(20, 30);
    const QWidget& about = windows.touch("frmAbout", process);
    EXPECT_LE((about.geometry().center() - module.geometry().center()).manhattanLength(), 2);
    windows.unload("frmAbout");
    module.hide();
    const QPoint middle = module.screen()->availableGeometry().center();
    EXPECT_LE((windows.touch("frmAbout", process).geometry().center() - middle).manhattanLength(), 2);
}

TEST_F(ModuleWindowTest, ReturnPressesTheButtonThatHasTheFocus) {
    QPushButton button(&open(Module::names));
    int presses = 0;
    QObject::connect(&button, &QPushButton::clicked, &button, [&] { ++presses; });
    button.show();
    button.setFocus();
    QTest::keyClick(&button, Qt::Key_Return);
    EXPECT_EQ(presses, 1);
}

TEST_F(ModuleWindowTest, NoIconIsAddedWhileTheProfileWindowsAreOpen) {
    record.shell.noTrayAdd = true;
    open(Module::names);
    EXPECT_FALSE(tray.decided()) << "nobody asked for a tray";
}

TEST_F(ModuleWindowTest, APlaceOnNoScreenComesBackOntoTheNearest) {
    QWidget window;
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
    const WindowPlace onScreen{area.left() * 15 + 300, area.top() * 15 + 450, 6000, 4500};
    moveToPlace(window, onScreen);
    EXPECT_EQ(placeOf(window), onScreen);
    for (const WindowPlace& lost : {WindowPlace{900000, 600, 6000, 4500}, WindowPlace{-900000, -900000, 6000, 4500},
                                    WindowPlace{2147483647, 2147483647, 1, 1}, WindowPlace{450, -3000, 6000, 4500}}) {
        moveToPlace(window, lost);
        EXPECT_TRUE(area.contains(window.pos())) << lost.left << ", " << lost.top;
    }
}

TEST(SecondTimer, TicksOnceInEachSecond) {
    test::application();
    SecondTimer timer(20, nullptr);
    timer.begin();
    EXPECT_TRUE(timer.interval() > 0 && timer.interval() <= 1020);
    timer.stop();
    const qint64 before = QDateTime::currentMSecsSinceEpoch();
    QMetaObject::invokeMethod(&timer, "timeout");
    const qint64 taken = QDateTime::currentMSecsSinceEpoch() - before;
    EXPECT_TRUE(timer.isActive()) << "each tick sets the next";
    EXPECT_LE((1020 - (before + timer.interval()) % 1000) % 1000, taken) << "20 ms after the second has begun";
}

TEST(PictureBox, AKeyThatCameFromElsewhereIsNoClick) {
    test::application();
    PictureBox box;
    box.setClickable(true);
    int clicks = 0;
    QObject::connect(&box, &PictureBox::clicked, [&] { ++clicks; });
    QTest::keyRelease(&box, Qt::Key_Return);
    EXPECT_EQ(clicks, 0);
    QTest::keyClick(&box, Qt::Key_Space);
    EXPECT_EQ(clicks, 1);
}

} // namespace
} // namespace velmoriax::shell
