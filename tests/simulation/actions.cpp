// SPDX-License-Identifier: GPL-3.0-or-later
#include "actions.h"

#include "on_screen.h"
#include "shell/windows/module_switcher.h"
#include "simulation.h"

#include <QAbstractSpinBox>
#include <QCalendarWidget>
#include <QComboBox>
#include <QCursor>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTest>

namespace velmoriax::simulation {

namespace {

using namespace std::chrono_literals;
using std::chrono::milliseconds;

// ---- In the windows

std::string clickControl(Simulation& simulation) {
    const auto controls = controlsOnScreen();
    if (controls.empty()) return "nothing to click";
    const Clickable& control = simulation.dice().oneOf(controls);
    simulation.note("click " + control.name);
    if (control.name == "CmdBorrar") ++simulation.deletions;
    control.click();
    return "clicked";
}

std::string useMenuBar(Simulation& simulation) {
    const auto actions = menuBarActions();
    if (actions.empty()) return "no menu";
    QAction* action = simulation.dice().oneOf(actions);
    simulation.note("menu " + action->objectName().toStdString());
    action->trigger();
    return "chosen";
}

std::string type(Simulation& simulation) {
    const auto fields = onScreen<QWidget>([](const QWidget& widget) {
        return widget.inherits("QLineEdit") || widget.inherits("QPlainTextEdit") || widget.inherits("QAbstractSpinBox");
    });
    if (fields.empty()) return "nothing to type into";
    QWidget* field = simulation.dice().oneOf(fields);
    simulation.note("type into " + field->objectName().toStdString());
    field->setFocus();
    QTest::keyClicks(field, simulation.dice().oneIn(2) ? QStringLiteral("7") : QStringLiteral("Ann"));
    return "typed";
}

std::string pickDay(Simulation& simulation) {
    const auto calendars = onScreen<QCalendarWidget>([](const QWidget&) { return true; });
    if (calendars.empty()) return "no calendar";
    QCalendarWidget* calendar = simulation.dice().oneOf(calendars);
    const QDate day = QDate(2026, 1, 1).addDays(simulation.dice().below(2000));
    simulation.note("pick " + day.toString(Qt::ISODate).toStdString());
    if (calendar->objectName() == "Calendar1") simulation.picked = {calendar, day};
    calendar->setSelectedDate(day);
    Q_EMIT calendar->clicked(day);
    return "picked";
}

std::string chooseFromList(Simulation& simulation) {
    const auto lists =
        onScreen<QListWidget>([](const QWidget& list) { return static_cast<const QListWidget&>(list).count() > 0; });
    const auto combos =
        onScreen<QComboBox>([](const QWidget& box) { return static_cast<const QComboBox&>(box).count() > 0; });
    Dice& dice = simulation.dice();
    if (!lists.empty() && (combos.empty() || dice.oneIn(2))) {
        QListWidget* list = dice.oneOf(lists);
        const QRect row = list->visualItemRect(list->item(dice.below(list->count())));
        simulation.note("row of " + list->objectName().toStdString());
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, row.center());
        return "chosen";
    }
    if (combos.empty()) return "no list";
    QComboBox* combo = dice.oneOf(combos);
    combo->setCurrentIndex(dice.below(combo->count()));
    simulation.note("entry " + combo->currentText().toStdString());
    Q_EMIT combo->activated(combo->currentIndex());
    return "chosen";
}

std::string closeWindow(Simulation& simulation) {
    const auto windows = usableWindows();
    if (windows.empty()) return "nothing to close";
    QWidget* window = simulation.dice().oneOf(windows);
    simulation.note("close " + window->objectName().toStdString());
    window->close();
    return "closed";
}

std::string minimise(Simulation& simulation) {
    shell::ModuleWindow* module = simulation.module();
    if (!module || !module->isVisible()) return "nothing to minimise";
    module->setWindowState(Qt::WindowMinimized);
    return "minimise";
}

std::string moveOverPicture(Simulation& simulation) {
    const auto pictures = onScreen<widgets::PictureBox>([](const QWidget&) { return true; });
    if (pictures.empty()) return "no picture";
    widgets::PictureBox* picture = simulation.dice().oneOf(pictures);
    const int moves = 1 + simulation.dice().below(8);
    for (int i = 0; i < moves; ++i) QTest::mouseMove(picture, picture->rect().center() + QPoint(i % 2, 0));
    return std::to_string(moves) + " moves over " + picture->objectName().toStdString();
}

std::string leavePicture(Simulation&) {
    for (QWidget* window : usableWindows()) QTest::mouseMove(window, QPoint(2, 2));
    return "the mouse leaves";
}

// ---- At the tray

std::string clickIcon(Simulation& simulation) {
    if (simulation.dice().oneIn(4)) simulation.tray.doubleClick();
    simulation.tray.click();
    return "click on the icon";
}

std::string openIconMenu(Simulation& simulation) {
    simulation.tray.rightClick();
    if (QWidget* popup = QApplication::activePopupWidget()) popup->close();
    return "menu of the icon";
}

std::string useTrayMenu(Simulation& simulation) {
    const auto actions = actionsOf(simulation.tray.menu);
    if (actions.empty()) return "no icon menu";
    QAction* action = simulation.dice().oneOf(actions);
    simulation.note("icon menu " + action->objectName().toStdString());
    action->trigger();
    return "chosen";
}

std::string restOnIcon(Simulation& simulation) {
    restPointerOnIcon(simulation);
    return "rest on the icon";
}

std::string leaveIcon(Simulation& simulation) {
    QCursor::setPos(10, 10);
    simulation.pass(300ms, 100ms);
    return "leave the icon";
}

std::string loseTray(Simulation& simulation) {
    simulation.tray.lose();
    simulation.pass(1s, 200ms);
    simulation.tray.comeBack();
    return "the tray goes and comes back";
}

std::string movePanel(Simulation& simulation) {
    using Position = platform::TaskBarPosition;
    const std::array<std::optional<Position>, 3> places{Position{0, 770, 800, 800, Position::bottomEdge},
                                                        Position{0, 0, 800, 30, Position::topEdge}, std::nullopt};
    simulation.taskBar.where = simulation.dice().oneOf(places);
    return "the panel moves";
}

// ---- Time

std::string passTime(Simulation& simulation) {
    constexpr std::array<std::pair<milliseconds, milliseconds>, 5> spans{
        {{100ms, 100ms}, {1s, 200ms}, {5s, 1s}, {40s, 1s}, {31min, 30s}}};
    const auto [span, stride] = simulation.dice().oneOf(spans);
    simulation.note(std::to_string(span.count()) + " ms pass");
    simulation.pass(span, stride);
    return "passed";
}

/// This platform activates each window that is shown: one that asks for no activation would get none elsewhere.
void checkFocus(Simulation& simulation) {
    const QWidget* active = QApplication::activeWindow();
    const bool asked =
        active && active != &simulation.otherProgram && !active->testAttribute(Qt::WA_ShowWithoutActivating);
    if (simulation.broken.empty() && asked)
        simulation.broken = "The user's other program keeps the keyboard. Found: " + active->objectName().toStdString();
}

std::string workElsewhere(Simulation& simulation) {
    simulation.otherProgram.show();
    simulation.otherProgram.activateWindow();
    simulation.settle();
    if (QApplication::activeWindow() != &simulation.otherProgram) return "the other program is not reached";
    if (simulation.dice().oneIn(2)) simulation.goToMidnight();
    simulation.undisturbed([&] {
        for (int seconds = simulation.dice().oneIn(2) ? 40 : 1860; seconds > 0 && simulation.isRunning(); --seconds) {
            simulation.pass(1s, 1s);
            checkFocus(simulation);
        }
        restPointerOnIcon(simulation);
        checkFocus(simulation);
    });
    return "worked elsewhere";
}

std::string passMidnight(Simulation& simulation) {
    simulation.goToMidnight();
    simulation.note("midnight");
    simulation.pass(simulation.dice().oneIn(2) ? 8s : 40s, 1s);
    return "passed";
}

std::string changeClock(Simulation& simulation) {
    constexpr std::array<std::chrono::seconds, 5> shifts{3600s, -3600s, 8h, 24h * 30, -24h};
    const auto shift = simulation.dice().oneOf(shifts);
    simulation.clock.setForward(shift);
    return "the clock is set by " + std::to_string(shift.count()) + " s";
}

// ---- Files, sound, and the end

std::string changeFiles(Simulation& simulation) {
    switch (simulation.faultsMayCome ? simulation.dice().below(3) : 2) {
    case 0:
        simulation.files.readOnly = !simulation.files.readOnly;
        simulation.filesFail = true;
        return simulation.files.readOnly ? "the disk is full" : "the disk has space again";
    case 1:
        std::erase_if(simulation.files.contents, [](const auto& file) { return file.first.starts_with("/tmp/"); });
        return "temporary files are deleted";
    default:
        simulation.songs.endSong();
        return "the song ends";
    }
}

std::string endSession(Simulation& simulation) {
    simulation.program().modules.switcher.exit();
    return "the session ends";
}

struct Action {
    int weight;
    bool whileBoxOpen; ///< a box is modal: only what is outside the windows can happen
    std::string (*run)(Simulation&);
};

constexpr std::array<Action, 20> actions{
    {{30, false, clickControl},  {12, false, useMenuBar}, {6, false, type},          {8, false, pickDay},
     {8, false, chooseFromList}, {8, false, closeWindow}, {4, false, minimise},      {8, false, moveOverPicture},
     {3, false, leavePicture},   {10, true, clickIcon},   {3, true, openIconMenu},   {10, true, useTrayMenu},
     {8, true, restOnIcon},      {5, true, leaveIcon},    {2, true, loseTray},       {3, true, movePanel},
     {20, true, passTime},       {4, true, passMidnight}, {5, false, workElsewhere}, {2, true, changeClock}}};
constexpr std::array<Action, 2> rareActions{{{4, true, changeFiles}, {1, true, endSession}}};

} // namespace

std::string runAction(Simulation& simulation) {
    std::vector<Action> possible(actions.begin(), actions.end());
    possible.insert(possible.end(), rareActions.begin(), rareActions.end());
    if (simulation.boxIsOpen()) std::erase_if(possible, [](const Action& action) { return !action.whileBoxOpen; });
    int total = 0;
    for (const Action& action : possible) total += action.weight;
    int chosen = simulation.dice().below(total);
    for (const Action& action : possible) {
        chosen -= action.weight;
        if (chosen < 0) return action.run(simulation);
    }
    return {};
}

} // namespace velmoriax::simulation
