// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "program/modules.h"
#include "services.h"
#include "shell/windows/frm_timer.h"
#include "shell/windows/module_window.h"
#include "support/fake_tray.h"

#include <QDate>
#include <QPointer>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace velmoriax::simulation {

/// One action of the user or of the desktop, and all chance inside it, by its seed.
using Step = std::uint64_t;
using Sequence = std::vector<Step>;

/// The program as it runs from a start to its end.
struct Program {
    explicit Program(shell::DesktopServices& services);

    program::Modules modules;
    std::unique_ptr<platform::Notification> notification;
    shell::FrmTimer hub;
};

/// The whole program with its real windows on a desktop that chance drives. Wherever the program processes events or
/// shows a box, something else may happen.
class Simulation {
public:
    Simulation();
    ~Simulation();

    /// Runs the steps, and stops at the first law that is broken. Returns what is wrong.
    std::optional<std::string> run(const Sequence& steps);

    /// Lets days pass, each with some steps by chance; nothing fails in them.
    void runDays(int days, Step seed);

    std::function<void(const base::RunTimeError&)> fatalStop; ///< does not return
    std::function<void(const std::string&)> listener;         ///< is told what happens, the same for the same steps

    // What the actions and the laws see.

    Program& program() { return *program_; }
    shell::ModuleWindow* module() { return shell::ModuleWindow::loadedIn(program_->modules.windows); }
    shell::ShellState& state() { return program_->modules.state; }
    bool isRunning() const { return program_ && !program_->modules.state.closingAll; }
    bool boxIsOpen() const { return boxes.open > 0; }
    Dice& dice() { return dice_; }
    void note(const std::string& line);

    /// Lets time pass, with the events of each stride.
    void pass(std::chrono::milliseconds time, std::chrono::milliseconds stride);
    /// Handles all events that wait.
    void settle();
    /// Three seconds before the next midnight.
    void goToMidnight();
    /// Nothing else happens meanwhile.
    void undisturbed(const std::function<void()>& work);

    WallClock clock;
    test::FakeZone zone;
    test::FakeFiles files;
    test::FakeSounds sounds;
    Devices songs;
    test::FakeOpener opener;
    SimulatedBoxes boxes;
    test::FakeAutostart autostart;
    YieldingEvents events;
    test::FakeRandom random;
    test::FakeTray tray;
    test::FakeTaskBar taskBar;
    QWidget otherProgram; ///< the window of another program of the user

    bool faultsMayCome = true;
    bool filesFail = false;                     ///< a fault was injected, so that a fatal stop is allowed
    std::pair<QPointer<QObject>, QDate> picked; ///< in Another Day: its calendar, and the day picked last
    std::ptrdiff_t people = 2;                  ///< in the list when it was checked last
    std::ptrdiff_t lost = 0;                    ///< people since the start
    int deletions = 0;                          ///< of people by the user
    std::string broken;                         ///< the first law that was broken at a point inside a step

private:
    void forgetWhatFakesNoted();
    std::optional<std::string> runSteps(const Sequence& steps);
    void start();
    void end();
    void step(Step seed);
    void act();
    void yield();

    shell::DesktopServices services_{clock,
                                     zone,
                                     files,
                                     sounds,
                                     songs,
                                     opener,
                                     boxes,
                                     autostart,
                                     events,
                                     random,
                                     tray,
                                     taskBar,
                                     VELMORIAX_PLUGIN_DIR};
    std::unique_ptr<Program> program_;
    Dice dice_{0};
    int depth_ = 0;
    int points_ = 0; ///< at which the program yielded in this step
};

} // namespace velmoriax::simulation
