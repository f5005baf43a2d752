// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/windows/form_mod.h"
#include "biorhythm/windows/form_snap.h"
#include "biorhythm/windows/frm_bio.h"
#include "biorhythm/windows/frm_compa_tab.h"
#include "biorhythm/windows/frm_profiles.h"
#include "platform/qt/boxes.h"
#include "platform/qt/mixer.h"
#include "platform/qt/panel_position.h"
#include "platform/qt/session.h"
#include "platform/qt/system_clock.h"
#include "shell/windows/frm_about.h"
#include "shell/windows/frm_options.h"
#include "shell/windows/frm_timer.h"
#include "shell/windows/frm_tool_tip.h"
#include "shell/windows/look.h"
#include "shell/windows/notif.h"
#include "shell/windows/notifications.h"
#include "shell/windows/window_registry.h"
#include "sky/windows/frm_moon_phase.h"
#include "tarot/windows/frm_calendar.h"
#include "tarot/windows/frm_carta_dia.h"
#include "tarot/windows/frm_name.h"
#include "tarot/windows/frm_oracle.h"
#include "tarot/windows/frm_velmoriax.h"

#include <QSessionManager>

#include <cstdlib>

namespace {

using namespace velmoriax;
using shell::Module;
using shell::Process;

/// A window can place itself only on X11: with both servers there, and no choice by the user, that one is taken.
void preferX11() {
    const bool both = std::getenv("WAYLAND_DISPLAY") && std::getenv("DISPLAY");
    if (both && !std::getenv("QT_QPA_PLATFORM")) ::setenv("QT_QPA_PLATFORM", "xcb", 0);
}

void nameApplication() {
    QApplication::setApplicationName(QStringLiteral("Velmoriax"));
    QApplication::setApplicationVersion(QStringLiteral(VELMORIAX_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("velmoriax"));
    QApplication::setQuitOnLastWindowClosed(false);
}

/// The format is told, so that the readers of other formats are not loaded only to be asked.
QIcon programIcon() {
    QIcon icon;
    for (const int size : {16, 22, 24, 32, 48, 64})
        icon.addPixmap(QPixmap(QStringLiteral(":/icons/velmoriax-%1.png").arg(size), "PNG"));
    return icon;
}

template<typename Window>
shell::ModuleWindow* make(Process& process) {
    return new Window(process);
}

template<typename Window>
shell::SecondaryWindow* makeBeside(Process& process) {
    return new Window(process);
}

void addWindows(shell::WindowRegistry& windows) {
    windows.addModule(Module::cardOfDay, make<tarot::FrmCartaDia>);
    windows.addModule(Module::anotherDay, make<tarot::FrmCalendar>);
    windows.addModule(Module::oracle, make<tarot::Frmoracle>);
    windows.addModule(Module::names, make<tarot::FrmName>);
    windows.addModule(Module::numbers, make<tarot::frmVelmoriax>);
    windows.addModule(Module::biorhythms, make<biorhythm::frmBio>);
    windows.addSecondary(sky::FrmMoonPhase::windowName, makeBeside<sky::FrmMoonPhase>);
    windows.addSecondary("Notif", makeBeside<shell::Notif>);
    windows.addSecondary("FrmToolTip", makeBeside<shell::FrmToolTip>);
    windows.addSecondary("FrmOptions", makeBeside<shell::FrmOptions>);
    windows.addSecondary("frmAbout", makeBeside<shell::frmAbout>);
    windows.addSecondary("FrmCompaTab", makeBeside<biorhythm::FrmCompaTab>);
    windows.addSecondary("FrmProfiles", makeBeside<biorhythm::FrmProfiles>);
    windows.addSecondary("FormMod", makeBeside<biorhythm::FormMod>);
    windows.addSecondary("FormSnap", makeBeside<biorhythm::FormSnap>);
}

void refuseSecondInstance(platform::MessageBoxes& boxes) {
    boxes.show(platform::BoxIcon::information, "Velmoriax.EXE is already running!");
}

/// The end of a session asks nothing, and the desktop shall not start the program again by itself.
void followSession(QApplication& application, const std::function<void()>& exit) {
    QObject::connect(&application, &QGuiApplication::saveStateRequest,
                     [](QSessionManager& manager) { manager.setRestartHint(QSessionManager::RestartNever); });
    QObject::connect(&application, &QGuiApplication::commitDataRequest,
                     [](QSessionManager& manager) { manager.setRestartHint(QSessionManager::RestartNever); });
    QObject::connect(&application, &QCoreApplication::aboutToQuit, exit);
}

} // namespace

int main(int argc, char** argv) {
    preferX11();
    desktop::FatalBox fatalBox;
    desktop::Application application(argc, argv, fatalBox);
    nameApplication();
    const QIcon icon = programIcon();
    application.setWindowIcon(icon);
    shell::look::apply(application);

    desktop::QtMessageBoxes boxes;
    desktop::DiskFiles files(desktop::programFolders(QApplication::applicationFilePath().toStdString()));
    files.createFolders();
    const desktop::SingleInstance instance(files.applicationDirectory());
    if (!instance.isFirst()) {
        refuseSecondInstance(boxes);
        return EXIT_SUCCESS;
    }

    desktop::SystemClock clock;
    desktop::SystemTimeZone zone;
    const std::string libraryFolder = QApplication::applicationDirPath().toStdString() + "/late";
    desktop::Mixer mixer(files, libraryFolder);
    desktop::QtDocumentOpener opener(files);
    desktop::XdgAutostart autostart(QApplication::applicationFilePath().toStdString());
    desktop::QtPendingEvents events;
    desktop::ClockRandom random;
    desktop::DesktopTray tray(icon);
    const desktop::PanelPosition panel(tray);
    shell::DesktopServices services{clock,     zone,   files,  mixer, mixer, opener,       boxes,
                                    autostart, events, random, tray,  panel, libraryFolder};

    shell::ProcessRecord record(files);
    shell::WindowRegistry windows(events);
    Process process{record, services, windows};
    addWindows(windows);
    const auto notification = shell::makeNotification(process);
    process.notification = notification.get();
    fatalBox.takeIconAway = [&tray] { tray.remove(); };

    shell::FrmTimer hub(process);
    const auto exitLikeTheMenu = [&windows] {
        if (auto* module = windows.loadedModule()) module->UnloadAllForms();
    };
    const desktop::ExitSignals exitSignals(exitLikeTheMenu);
    followSession(application, exitLikeTheMenu);
    try {
        hub.load();
    } catch (const base::RunTimeError& error) {
        fatalBox.stop(error);
    }
    // The end may have been asked for while the first window still loaded, with no event loop to leave.
    return record.shell.closingAll ? EXIT_SUCCESS : QApplication::exec();
}
