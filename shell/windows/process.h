// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/autostart.h"
#include "platform/clock.h"
#include "platform/document_opener.h"
#include "platform/files.h"
#include "platform/media.h"
#include "platform/message_boxes.h"
#include "platform/notification.h"
#include "platform/pending_events.h"
#include "platform/qt/desktop_tray.h"
#include "platform/random_source.h"
#include "platform/sounds.h"
#include "platform/task_bar.h"
#include "platform/time_zone.h"
#include "shell/process_record.h"
#include "shell/tip_source.h"

namespace velmoriax::shell {

class WindowRegistry;

/// What the desktop gives, as the windows see it.
struct DesktopServices {
    platform::Clock& clock;
    platform::TimeZone& zone;
    platform::Files& files;
    platform::Sounds& sounds;
    platform::Media& media;
    platform::DocumentOpener& opener;
    platform::MessageBoxes& boxes;
    platform::Autostart& autostart;
    platform::PendingEvents& events;
    platform::RandomSource& random;
    desktop::DesktopTray& tray;
    const platform::TaskBar& taskBar;
    std::string libraryFolder; ///< where the libraries lie that are loaded when they are needed
};

/// What every window is given: the process record, the desktop and the other windows.
struct Process {
    ProcessRecord& record;
    DesktopServices& desktop;
    WindowRegistry& windows;
    TipSource* tips = nullptr;                      ///< set by the hub when it comes into being
    platform::Notification* notification = nullptr; ///< set by the entry
};

} // namespace velmoriax::shell
