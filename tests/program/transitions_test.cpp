// SPDX-License-Identifier: GPL-3.0-or-later
// Every request in the middle of every other one: loads, slides and searches process pending events, so the tray, a
// signal or midnight may come at any point of them. What is clicked in the windows is left to the simulation.
#include "support/program_fixture.h"
#include "support/supplied_files.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>

namespace velmoriax::program {
namespace {

/// A notification that processes events while it slides, as the real one does at each step.
struct SlidingFake : test::FakeNotification {
    explicit SlidingFake(platform::PendingEvents& pending) : events(pending) {}
    void slideUp(const std::string& text) override {
        events.processEvents();
        FakeNotification::slideUp(text);
        events.processEvents();
    }
    void slideDown() override {
        events.processEvents();
        FakeNotification::slideDown();
        events.processEvents();
    }
    void close() override { slideDown(); }

    platform::PendingEvents& events;
};

/// The whole program, with a request that comes at one point at which another one processes events or shows a box.
struct World : test::ProgramFixture {
    explicit World(std::string_view first) {
        files.contents = test::suppliedFiles(files.directory);
        files.at("\\bio.dat") = "15,3,1980\r\n";
        files.at("\\perfiles.txt") = "Ann,March/15/1980,7:45\r\nBob,January/1/1980,12:30\r\n";
        // A stored place makes the load of the Card of the Day process events at its beginning too.
        files.at("\\opciones.ini") = "[opciones]\r\nNivel Alertas=Only actual situation\r\n[Posici\xF3n]\r\n"
                                     "Velmoriaxcod_Left=1500\r\nVelmoriaxcod_Top=1500\r\n";
        songs.songs = {files.directory + "\\Are You Lonesome Tonight.mid"};
        tray.arrive();
        modules.setNotification(&sliding);
        options.readAtStart();
        modules.biorhythmsForShell.loadAtStart();
        switcher.loadFirst(first);
        window = &loadedModule();
        for (auto* field : window->findChildren<QLineEdit*>()) field->setText(QStringLiteral("Ann 7"));
        for (auto* question : window->findChildren<QPlainTextEdit*>()) question->setPlainText(QStringLiteral("Ann 7"));
    }
    void TestBody() override {}

    /// What happened at the n-th point at which events were processed; how many points there were.
    int run(const std::function<void(World&)>& outer, int point, const std::function<void(World&)>& inner) {
        int points = 0;
        events.whatRuns = [&, busy = false]() mutable {
            if (++points != point || busy) return;
            busy = true;
            inner(*this);
        };
        boxes.whileOpen = events.whatRuns;
        outer(*this);
        events.whatRuns = nullptr;
        boxes.whileOpen = nullptr;
        return points;
    }

    /// What must be true when control is back and all that waited has been done.
    void check() {
        for (int i = 0; i < 4; ++i) QTest::qWait(0);
        EXPECT_FALSE(state.viewLoading);
        if (state.closingAll) {
            EXPECT_EQ(windows.loadedModule(), nullptr) << "the program has ended";
            EXPECT_EQ(moduleWindows(), 0);
        } else {
            EXPECT_EQ(switcher.stage(), shell::Stage::loaded);
            EXPECT_EQ(moduleWindows(), 1) << "one module, and nothing else is left";
        }
    }
    static int moduleWindows() {
        int count = 0;
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (dynamic_cast<shell::ModuleWindow*>(widget)) ++count;
        return count;
    }

    using ProgramFixture::clock, ProgramFixture::hub, ProgramFixture::state, ProgramFixture::switcher,
        ProgramFixture::tray, ProgramFixture::windows, ProgramFixture::fire, ProgramFixture::loadedModule,
        ProgramFixture::modules;

    SlidingFake sliding{events};
    QPointer<shell::ModuleWindow> window; ///< the first module
};

struct Step {
    std::string name;
    std::function<void(World&)> run;
};

std::vector<std::string> moduleNames() {
    return {"FrmCartaDia", "FrmCalendar", "Frmoracle", "FrmName", "frmVelmoriax", "frmBio"};
}

Step goTo(const std::string& target) {
    return {"go to " + target, [target](World& world) { world.switcher.handOver(target); }};
}

/// By the first module's own menu, which may be gone by then or waiting for the next one's load.
Step menuOfFirst(const std::string& target) {
    return {"menu to " + target, [target](World& world) {
                if (!world.window) return;
                for (QAction* action : world.window->findChildren<QAction*>())
                    if (action->text() == QString::fromStdString(target)) return action->trigger();
            }};
}

const Step exitProgram{"exit", [](World& world) { world.switcher.exit(); }};
const Step closeModule{"close", [](World& world) {
                           if (auto* module = shell::ModuleWindow::loadedIn(world.windows)) module->close();
                       }};
const Step loseTray{"lose the tray", [](World& world) { Q_EMIT world.tray.trayLost(); }};
const Step midnight{"midnight", [](World& world) {
                        world.clock.set({2026, 11, 16}, {0, 0, 1});
                        if (auto* module = shell::ModuleWindow::loadedIn(world.windows))
                            for (QTimer* timer : module->findChildren<QTimer*>("krono"))
                                QMetaObject::invokeMethod(timer, "timeout");
                    }};
const Step returnFromTray{"return from the tray", [](World& world) {
                              if (auto* module = shell::ModuleWindow::loadedIn(world.windows)) module->returnFromTray();
                          }};
const Step showTip{"tip", [](World& world) {
                       for (shell::TipLineSource* line : world.modules.subsystems.tipLines)
                           line->tipLine(world.clock.now());
                       if (!world.state.closingAll) world.windows.touch("FrmToolTip");
                   }};
const Step alert{"alert", [](World& world) { world.modules.biorhythmsForShell.runHalfHourly(); }};
const Step minimise{"minimise", [](World& world) {
                        auto* module = shell::ModuleWindow::loadedIn(world.windows);
                        if (!module) return;
                        module->setWindowState(Qt::WindowMinimized);
                        QTest::qWait(0);
                    }};

int everyPair(const std::string& first, const std::vector<Step>& outers, const std::vector<Step>& inners) {
    int pairs = 0;
    for (const Step& outer : outers) {
        const int points = World(first).run(outer.run, 0, [](World&) {});
        for (const Step& inner : inners)
            for (int point = 1; point <= points; ++point) {
                SCOPED_TRACE(first + ": " + inner.name + " in " + outer.name + " at point " + std::to_string(point));
                World world(first);
                world.run(outer.run, point, inner.run);
                world.check();
                ++pairs;
            }
    }
    return pairs;
}

struct Transitions : testing::TestWithParam<std::string> {};

TEST_P(Transitions, EveryRequestMayComeInTheMiddleOfEveryOther) {
    test::application();
    const std::string first = GetParam();
    std::vector<Step> outers{exitProgram, closeModule, midnight, returnFromTray, showTip, alert, minimise};
    std::vector<Step> inners{exitProgram, closeModule, loseTray, midnight, returnFromTray, showTip, alert, minimise};
    for (const std::string& name : moduleNames()) {
        if (name == first) continue;
        outers.push_back(goTo(name));
    }
    inners.push_back(goTo("FrmName"));
    inners.push_back(goTo("FrmCartaDia"));
    inners.push_back(menuOfFirst("Numbers"));
    EXPECT_GE(everyPair(first, outers, inners), 60) << "so few that the points were not reached";
}

INSTANTIATE_TEST_SUITE_P(Modules, Transitions, testing::ValuesIn(moduleNames()),
                         [](const auto& module) { return module.param; });

TEST(Transitions, TheLatestOfSeveralRequestsThatWaitCounts) {
    test::application();
    World world("FrmName");
    world.run(goTo("FrmCartaDia").run, 1, [](World& inside) {
        inside.switcher.handOver("Frmoracle");
        inside.switcher.handOver("frmBio");
    });
    world.check();
    EXPECT_EQ(world.loadedModule().module().windowName, "frmBio");
}

TEST(Transitions, ARequestForTheModuleThatIsOpeningOnlyShowsIt) {
    test::application();
    World world("FrmName");
    world.run(goTo("FrmCartaDia").run, 1, [](World& inside) { inside.switcher.handOver("FrmCartaDia"); });
    world.check();
    EXPECT_TRUE(world.loadedModule().isVisible());
}

} // namespace
} // namespace velmoriax::program
