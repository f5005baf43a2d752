// SPDX-License-Identifier: GPL-3.0-or-later
#include "laws.h"

#include "base/date_text.h"
#include "on_screen.h"
#include "shell/windows/module_switcher.h"
#include "shell/windows/notif.h"
#include "simulation.h"
#include "sky/moon_texts.h"
#include "sky/zodiac.h"
#include "tarot/ambient_sound.h"
#include "tarot/day_view.h"
#include "tarot/drawn_card.h"
#include "widgets/conversions.h"

#include <QApplication>
#include <QLabel>
#include <QTimer>

#include <algorithm>
#include <array>

namespace velmoriax::simulation {

namespace {

using namespace std::chrono_literals;
using Fault = std::optional<std::string>;

Fault unless(bool holds, const std::string& otherwise) {
    return holds ? Fault() : Fault(otherwise);
}

std::vector<shell::ManagedWindow*> managedWindows() {
    std::vector<shell::ManagedWindow*> found;
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto* window = dynamic_cast<shell::ManagedWindow*>(widget)) found.push_back(window);
    return found;
}

template<typename Control>
QString textOf(const QWidget& window, const char* name) {
    const auto* control = window.findChild<Control*>(QString::fromLatin1(name));
    return control ? control->text() : QString();
}

QString tipOf(const QWidget& window, const char* name) {
    const auto* control = window.findChild<QWidget*>(QString::fromLatin1(name));
    return control ? control->toolTip() : QString();
}

// ---- At every moment

Fault onlyLoadedWindowsAreShown(Simulation& simulation) {
    for (shell::ManagedWindow* window : managedWindows()) {
        const bool loaded = simulation.program().modules.windows.isLoaded(*window);
        if (window->widget().isVisible() && !loaded) return window->widget().objectName().toStdString();
    }
    return std::nullopt;
}

/// Each new person has a name of the same length, so that none is the end of another one and goes with it.
Fault nobodyIsLost(Simulation& simulation) {
    const std::string& lines = simulation.files.at("\\perfiles.txt");
    const auto people = std::ranges::count(lines, '\n');
    const auto fewer = std::exchange(simulation.people, people) - people;
    simulation.lost += std::max<std::ptrdiff_t>(fewer, 0);
    const bool whole = lines.empty() || lines.ends_with("\r\n");
    const bool byDeletions = simulation.lost <= simulation.deletions;
    return unless(whole && byDeletions, "the list is now " + lines);
}

// ---- When control is back

Fault oneModuleIsLoaded(Simulation& simulation) {
    const auto modules = std::ranges::count_if(
        managedWindows(), [](shell::ManagedWindow* window) { return dynamic_cast<shell::ManagedModule*>(window); });
    const bool loaded = simulation.program().modules.switcher.stage() == shell::Stage::loaded;
    return unless(modules == 1 && loaded && simulation.module(), std::to_string(modules) + " modules");
}

Fault whatIsNotLoadedIsGone(Simulation& simulation) {
    for (shell::ManagedWindow* window : managedWindows())
        if (!simulation.program().modules.windows.isLoaded(*window)) return window->widget().objectName().toStdString();
    return std::nullopt;
}

Fault theIconIsInTheTray(Simulation& simulation) {
    return unless(simulation.tray.shown && simulation.tray.menu, "no icon");
}

Fault theMouseIsHeldByAShownWindow(Simulation&) {
    const QWidget* holder = QWidget::mouseGrabber();
    return unless(!holder || holder->isVisible(), "held by a hidden control");
}

Fault noFlagIsLeft(Simulation& simulation) {
    const shell::ShellState& state = simulation.state();
    if (state.viewLoading) return "viewLoading";
    if (state.cardDescriptionOpen) return "cardDescriptionOpen";
    return unless(!state.refreshingView || simulation.module()->objectName() == "FrmCartaDia", "refreshingView");
}

Fault theNotificationIsShownWhenItsFlagSaysSo(Simulation& simulation) {
    const auto* notif = simulation.program().modules.windows.loaded<shell::Notif>();
    const bool shown = notif && notif->isVisible();
    return unless(shown == simulation.state().notifOpen,
                  shown ? "shown without the flag" : "the flag without a window");
}

Fault theSongPlaysInAnOracleThatWantsIt(Simulation& simulation) {
    if (!simulation.songs.isPlaying()) return std::nullopt;
    if (simulation.module()->objectName() != "Frmoracle") return "it plays in another module";
    const std::string wanted = simulation.program().modules.options.option(shell::key::soundAmbient);
    return unless(wanted != tarot::ambientOffWord || simulation.files.readOnly, "it is switched off");
}

Fault theCardOfDayIsThatOfItsDateLine(Simulation& simulation) {
    const QWidget& window = *simulation.module();
    if (window.objectName() != "FrmCartaDia") return std::nullopt;
    const QString line = textOf<QLabel>(window, "LblDate");
    const std::int32_t today = base::dayNumber(base::civilDateOf(simulation.clock.now()));
    for (std::int32_t day = today + 60; day > today - 400; --day) {
        const base::CivilDate date = base::civilDateOfDay(day);
        if (widgets::qtText(tarot::cardOfDayDateLine(date)) != line) continue;
        tarot::CardState cards;
        const auto drawn = tarot::sumcartdia(base::shortDateText(date), {}, cards).drawn;
        return unless(tipOf(window, "ImgCartadia") == widgets::qtText(drawn.tip), line.toStdString());
    }
    return "no date near has the line " + line.toStdString();
}

Fault anotherDayShowsTheDayPickedLast(Simulation& simulation) {
    const QWidget& window = *simulation.module();
    const auto& [calendar, day] = simulation.picked;
    if (window.objectName() != "FrmCalendar" || !calendar) return std::nullopt;
    const base::CivilDate date = widgets::civilDate(day);
    test::FakeEvents quiet;
    tarot::CardState cards;
    sky::SkyState state;
    const auto drawn = tarot::sumcartdia(base::shortDateText(date), {}, cards).drawn;
    const auto moon = sky::drawDateMoon(sky::MoonEngine(quiet), date);
    const auto& sign = sky::signoZodCalendar(simulation.files, date, "Norte", state);
    if (textOf<QLabel>(window, "LabelZod") != widgets::qtText(sign.label)) return "the sign of another day";
    if (tipOf(window, "Imgfechasel") != widgets::qtText(drawn.tip)) return "the card of another day";
    return unless(tipOf(window, "ImgLuna") == widgets::qtText(moon.tip), "the moon of another day");
}

Fault aPanelThatShowsTheTextHasIt(Simulation& simulation) {
    if (simulation.tray.reportsPointer() || !simulation.program().modules.options.holders.tooltipsOn())
        return std::nullopt;
    return unless(!simulation.tray.tip.isEmpty(), "no text");
}

struct Law {
    const char* sentence;
    Fault (*fault)(Simulation&);
};

constexpr std::array<Law, 2> lawsOfEveryMoment{{
    {"Only windows that are loaded are shown.", onlyLoadedWindowsAreShown},
    {"The list of profiles is whole, and nobody is lost but by a deletion.", nobodyIsLost},
}};

constexpr std::array<Law, 10> lawsBetweenSteps{{
    {"One module is loaded.", oneModuleIsLoaded},
    {"A window that is not loaded is deleted.", whatIsNotLoadedIsGone},
    {"The icon is in the tray.", theIconIsInTheTray},
    {"The mouse is held by a window that is shown, or by none.", theMouseIsHeldByAShownWindow},
    {"A flag is set only while its reason lasts.", noFlagIsLeft},
    {"The notification is shown exactly while its flag is set.", theNotificationIsShownWhenItsFlagSaysSo},
    {"The song plays only in an oracle that wants it.", theSongPlaysInAnOracleThatWantsIt},
    {"A panel that shows the icon's text has the tip.", aPanelThatShowsTheTextHasIt},
    {"The card of the day is that of the date beside it.", theCardOfDayIsThatOfItsDateLine},
    {"Another Day shows card, sign and moon of the day picked last.", anotherDayShowsTheDayPickedLast},
}};

template<typename Laws>
Fault firstBroken(Simulation& simulation, const Laws& laws) {
    for (const Law& law : laws)
        if (const Fault fault = law.fault(simulation)) return std::string(law.sentence) + " Found: " + *fault;
    return std::nullopt;
}

} // namespace

std::optional<std::string> brokenLawInside(Simulation& simulation) {
    return firstBroken(simulation, lawsOfEveryMoment);
}

std::optional<std::string> brokenLaw(Simulation& simulation) {
    if (auto fault = firstBroken(simulation, lawsOfEveryMoment)) return fault;
    return firstBroken(simulation, lawsBetweenSteps);
}

std::optional<std::string> brokenAfterRest(Simulation& simulation) {
    for (int second = 0, shownFor = 0; second < 70 && simulation.isRunning(); ++second) {
        simulation.pass(1s, 100ms); // finer than the seconds, none of which is missed
        shownFor = simulation.state().notifOpen ? shownFor + 1 : 0;
        if (shownFor > 31) return "A notification goes within half a minute. Found: it is still shown";
    }
    if (!simulation.isRunning() || !simulation.tray.reportsPointer()) return std::nullopt;
    restPointerOnIcon(simulation);
    QCursor::setPos(10, 10);
    simulation.pass(2s, 100ms);
    restPointerOnIcon(simulation);
    if (!simulation.isRunning() || !simulation.program().modules.options.holders.tooltipsOn()) return std::nullopt;
    const bool tip = simulation.tray.balloonShown || simulation.program().modules.windows.loaded("FrmToolTip");
    return unless(tip, "After some seconds of rest, a rest on the icon shows a tip. Found: none");
}

} // namespace velmoriax::simulation
