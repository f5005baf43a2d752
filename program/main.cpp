// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/application.h"
#include "desktop/audio_player.h"
#include "desktop/clock_seeded_random.h"
#include "desktop/desktop_tray.h"
#include "desktop/document_opener.h"
#include "desktop/executable_path.h"
#include "desktop/exit_signals.h"
#include "desktop/fatal_box.h"
#include "desktop/message_boxes.h"
#include "desktop/panel_position.h"
#include "desktop/pending_events.h"
#include "desktop/single_instance.h"
#include "desktop/system_clock.h"
#include "desktop/system_time_zone.h"
#include "desktop/xdg_autostart.h"
#include "program/modules.h"
#include "shell/windows/frm_timer.h"
#include "shell/windows/notifications.h"
#include "widgets/input_rules.h"
#include "widgets/look.h"

#include <QSessionManager>

#include <cstdlib>

namespace {

using namespace velmoriax;

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

/// The format is named, so that the readers of other formats are not loaded only to be asked.
QIcon programIcon() {
    QIcon icon;
    for (const int size : {16, 22, 24, 32, 48, 64})
        icon.addPixmap(QPixmap(QStringLiteral(":/icons/velmoriax-%1.png").arg(size), "PNG"));
    return icon;
}

void refuseSecondInstance(platform::MessageBoxes& boxes) {
    boxes.show(platform::BoxIcon::information,
               desktop::executablePath().filename().string() + ".EXE is already running!");
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
    widgets::look::apply(application);
    const widgets::InputRules inputRules(application);

    const std::filesystem::path executable = desktop::executablePath();
    desktop::QtMessageBoxes boxes;
    desktop::DiskFiles files(desktop::programFolders(executable));
    files.createApplicationDirectory();
    const desktop::SingleInstance instance(files.applicationDirectory());
    if (!instance.isFirst()) {
        refuseSecondInstance(boxes);
        return EXIT_SUCCESS;
    }
    files.prepareFolders();

    desktop::SystemClock clock;
    desktop::SystemTimeZone zone;
    const std::string pluginFolder = executable.parent_path() / "plugins";
    desktop::AudioPlayer audio(files, pluginFolder);
    desktop::QtDocumentOpener opener(files);
    desktop::XdgAutostart autostart(executable.string());
    desktop::QtPendingEvents events;
    desktop::ClockSeededRandom random;
    desktop::DesktopTray tray(icon);
    const desktop::PanelPosition panel(tray);
    shell::DesktopServices services{clock,     zone,   files,  audio, audio, opener,      boxes,
                                    autostart, events, random, tray,  panel, pluginFolder};

    program::Modules modules(services);
    const auto notification = shell::makeNotification(modules.context);
    modules.setNotification(notification.get());
    fatalBox.removeIcon = [&tray] { tray.remove(); };

    shell::FrmTimer hub(modules.context);
    const auto exitLikeTheMenu = [&modules] { modules.switcher.exit(); };
    const desktop::ExitSignals exitSignals(exitLikeTheMenu);
    followSession(application, exitLikeTheMenu);
    try {
        hub.load();
    } catch (const base::RunTimeError& error) {
        fatalBox.stop(error);
    }
    // The end may have been asked for while the first window still loaded, with no event loop to leave.
    return modules.state.closingAll ? EXIT_SUCCESS : QApplication::exec();
}
