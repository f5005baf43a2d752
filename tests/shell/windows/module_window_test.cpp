// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/windows/frm_about.h"
#include "shell/windows/window_place.h"
#include "support/window_fixture.h"

#include <QPushButton>
#include <QScreen>

namespace velmoriax::shell {
namespace {

/// A module without work of its own, which writes down what happens to it.
class PlainModule : public ModuleWindow {
public:
    PlainModule(WindowContext& context, const ModuleInfo& module, std::vector<std::string>& story) :
        ModuleWindow(context, module), name_(module.windowName), story_(story) {
        buildNavigation();
    }

protected:
    void ownLoad() override {
        EXPECT_TRUE(state().viewLoading);
        story_.push_back(name_ + " loads");
    }
    void ownCommand(std::string_view name) override { story_.push_back(name_ + " " + std::string(name)); }
    void onUnload() override { story_.push_back(name_ + " unloads"); }

private:
    std::string name_;
    std::vector<std::string>& story_;
};

constexpr std::array menu{
    goEntry("MnuSecond", "Second", "Second"),
    commandEntry("MnuDelResults", "Delete results", Command::own),
    commandEntry("Mnucont", "Contents of Help", Command::help),
};
const ModuleInfo first{"First", "First", true, {{}, {}, iconMenuOf(menu)}};
const ModuleInfo second{"Second", "Second", true, {{}, {}, iconMenuOf(menu)}};

struct ModuleWindowTest : test::WindowFixture {
    ModuleWindowTest() {
        for (const ModuleInfo* module : {&first, &second})
            windows.addModule(*module,
                              [this, module] { return std::make_unique<PlainModule>(context, *module, story); });
    }

    ModuleWindow& open(const ModuleInfo& module) {
        switcher.loadFirst(module.windowName);
        return *loadedModule();
    }

    std::vector<std::string> story;
};

TEST_F(ModuleWindowTest, AHandOverLoadsAndShowsItsTargetBeforeTheSourceUnloads) {
    files.at("\\opciones.ini") = "[opciones]\r\nIniciar Minimizado=True\r\n";
    ModuleWindow& source = open(first);
    EXPECT_FALSE(source.isVisible()) << "at the start the option counts";
    switcher.handOver("Second");
    EXPECT_TRUE(loadedModule()->isVisible()) << "and no more after it";
    EXPECT_EQ(story, (std::vector<std::string>{"First loads", "Second loads", "First unloads"}));
    EXPECT_FALSE(state.viewLoading);
}

TEST_F(ModuleWindowTest, TheStepOfAModuleChangeSoundsButNotTheExit) {
    files.at("\\opciones.ini") = "[opciones]\r\nBackground Sound=SiBgSound\r\n";
    open(first);
    switcher.handOver("Second");
    EXPECT_EQ(sounds.played, std::vector<std::string>{"boop.wav"});
    loadedModule()->UnloadAllForms();
    EXPECT_EQ(sounds.played.size(), 1U);
    EXPECT_EQ(windows.loadedModule(), nullptr);
    EXPECT_TRUE(state.closingAll);
}

TEST_F(ModuleWindowTest, WithoutATrayHidingAndClosingBecomeMinimising) {
    ModuleWindow& window = open(first);
    window.close();
    EXPECT_TRUE(window.isVisible() && window.isMinimized()) << "it has to stay within reach";
    EXPECT_EQ(story.back(), "First loads") << "a close is no unload";
    window.showNormalState();
    EXPECT_FALSE(window.isMinimized());
}

TEST_F(ModuleWindowTest, MenuEntriesReachTheirWindow) {
    open(first).menuAction("MnuDelResults")->trigger();
    EXPECT_EQ(story.back(), "First MnuDelResults");
    loadedModule()->menuAction("Mnucont")->trigger();
    EXPECT_EQ(opener.opened, std::vector<std::string>{"/home/ann/velmoriax/Velmoriax.html"});
}

TEST_F(ModuleWindowTest, AWindowBesideAModuleComesUpOverItsMiddle) {
    windows.add<frmAbout>(context);
    ModuleWindow& module = open(first);
    module.resize(500, 400);
    module.move(20, 30);
    const QWidget& about = windows.touch<frmAbout>();
    EXPECT_LE((about.geometry().center() - module.geometry().center()).manhattanLength(), 2);
    windows.unload("frmAbout");
    module.hide();
    const QPoint middle = module.screen()->availableGeometry().center();
    EXPECT_LE((windows.touch<frmAbout>().geometry().center() - middle).manhattanLength(), 2);
}

TEST_F(ModuleWindowTest, ReturnPressesTheButtonThatHasTheFocus) {
    QPushButton button(&open(first));
    int presses = 0;
    QObject::connect(&button, &QPushButton::clicked, &button, [&] { ++presses; });
    button.show();
    button.setFocus();
    QTest::keyClick(&button, Qt::Key_Return);
    EXPECT_EQ(presses, 1);
}

TEST_F(ModuleWindowTest, AStoredPlaceIsFittedOnTheScreensThereAre) {
    QWidget window;
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
    const WindowPlace onScreen{area.left() * 15 + 300, area.top() * 15 + 450, 6000, 4500};
    moveToPlace(window, onScreen);
    EXPECT_EQ(placeOf(window), onScreen);
    for (const WindowPlace& lost : {WindowPlace{900000, 600, 6000, 4500}, WindowPlace{-900000, -900000, 6000, 4500},
                                    WindowPlace{2147483647, 2147483647, 1, 1}, WindowPlace{450, -3000, 6000, 4500}}) {
        moveToPlace(window, lost);
        EXPECT_TRUE(area.contains(QRect(window.pos(), window.size().expandedTo({80, 24}))))
            << window.x() << ", " << window.y() << ", " << window.width() << ", " << window.height();
    }
    moveToPlace(window, {0, 0, 60000, 45000});
    EXPECT_TRUE(area.contains(window.geometry())) << "a place of a larger screen";
}

} // namespace
} // namespace velmoriax::shell
