// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation.h"

#include "actions.h"
#include "laws.h"
#include "shell/windows/notifications.h"
#include "support/supplied_files.h"

#include <QApplication>
#include <QCursor>
#include <QPixmapCache>

namespace velmoriax::simulation {

namespace {

using namespace std::chrono_literals;

constexpr const char* somePeople = "Person0001,March/15/1980,7:45\r\nPerson0002,January/1/1980,12:30\r\n";
constexpr int deepest = 2;           ///< actions inside one another
constexpr int mostActionsInside = 4; ///< in one step
constexpr QRect iconPlace(700, 772, 24, 24);
constexpr platform::TaskBarPosition panelAtBottom{0, 770, 800, 800, platform::TaskBarPosition::bottomEdge};

} // namespace

Program::Program(shell::DesktopServices& services) :
    modules(services), notification(shell::makeNotification(modules.context)), hub(modules.context) {
    modules.setNotification(notification.get());
}

Simulation::Simulation() {
    files.contents = test::suppliedFiles(files.directory);
    files.at("\\bio.dat") = "15,3,1980\r\n";
    files.at("\\perfiles.txt") = somePeople;
    boxes.dice = &dice_;
    boxes.events = &events;
    events.yield = [this] { yield(); };
    tray.place = iconPlace;
    taskBar.where = panelAtBottom;
}

Simulation::~Simulation() {
    if (program_) end();
}

std::optional<std::string> Simulation::run(const Sequence& steps) {
    try {
        return runSteps(steps);
    } catch (const base::RunTimeError& error) {
        fatalStop(error); // what is not thrown inside an event
        return std::nullopt;
    }
}

std::optional<std::string> Simulation::runSteps(const Sequence& steps) {
    const bool panelShowsTips = steps.front() % 3 == 0;
    tray.arrive(panelShowsTips ? desktop::TrayKind::item : desktop::TrayKind::window);
    start();
    for (const Step each : steps) {
        step(each);
        if (broken.empty()) broken = brokenLaw(*this).value_or("");
        if (!broken.empty()) return broken;
    }
    return std::nullopt;
}

void Simulation::runDays(int days, Step seed) {
    constexpr int stepsOfDay = 12;
    faultsMayCome = false;
    Dice dice(seed);
    if (!program_) {
        tray.arrive(desktop::TrayKind::window);
        start();
    }
    for (int day = 0; day < days; ++day) {
        for (int i = 0; i < stepsOfDay; ++i) step(dice.seed());
        goToMidnight();
        pass(40s, 1s);
        settle();
        forgetWhatFakesNoted();
    }
    program_->modules.switcher.handOver("FrmCartaDia"); // memory is measured with the same window
    settle();
    QPixmapCache::clear();
}

void Simulation::goToMidnight() {
    const base::CivilTime time = base::civilTimeOf(clock.now());
    clock.setForward(86400s - 3s - std::chrono::seconds(time.hour * 3600 + time.minute * 60 + time.second));
}

void Simulation::forgetWhatFakesNoted() {
    sounds.played.clear();
    opener.opened.clear();
    tray.balloons.clear();
    std::erase_if(files.contents, [](const auto& file) { return file.first.starts_with("/tmp/"); });
    files.at("\\perfiles.txt") = somePeople;
    people = 2;
    for (const char* log : {"resNumbers", "resNames", "resOracle"})
        files.at(std::string("\\logs\\") + log + ".log").clear();
}

void Simulation::start() {
    program_ = std::make_unique<Program>(services_);
    program_->hub.load();
    settle();
}

void Simulation::end() {
    if (!program_->modules.state.closingAll) program_->modules.switcher.exit();
    settle();
    program_.reset();
}

void Simulation::step(Step seed) {
    dice_ = Dice(seed);
    points_ = 0;
    depth_ = 0;
    act();
    settle();
    if (isRunning()) return;
    note("the program ends and starts again");
    end();
    start();
}

void Simulation::act() {
    ++depth_;
    note(runAction(*this));
    --depth_;
}

/// The program processes events or shows a box. The more such points a step has, the fewer of them are used.
void Simulation::yield() {
    if (broken.empty()) broken = brokenLawInside(*this).value_or("");
    ++points_;
    const bool mayAct = depth_ > 0 && depth_ <= deepest && isRunning();
    if (mayAct && dice_.oneIn(2 + points_ / mostActionsInside)) act();
}

void Simulation::note(const std::string& line) {
    const auto seconds = std::chrono::duration_cast<std::chrono::milliseconds>(simulatedTime()).count();
    const std::string indent(static_cast<std::size_t>(2 * depth_), ' ');
    if (listener) listener(std::to_string(seconds) + " ms " + indent + line);
}

void Simulation::pass(std::chrono::milliseconds time, std::chrono::milliseconds stride) {
    for (auto left = time; left > 0ms && isRunning(); left -= stride) {
        advanceTime(std::min(left, stride));
        QCoreApplication::processEvents();
    }
}

void Simulation::undisturbed(const std::function<void()>& work) {
    const int before = std::exchange(depth_, deepest + 1);
    work();
    depth_ = before;
}

void Simulation::settle() {
    constexpr int rounds = 6;
    for (int i = 0; i < rounds; ++i) {
        advanceTime(60ms); // a deletion that was put off is tried again by then
        QCoreApplication::processEvents();
    }
}

} // namespace velmoriax::simulation
