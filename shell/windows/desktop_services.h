// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/autostart.h"
#include "platform/clock.h"
#include "platform/document_opener.h"
#include "platform/files.h"
#include "platform/message_boxes.h"
#include "platform/pending_events.h"
#include "platform/random_source.h"
#include "platform/song_player.h"
#include "platform/sounds.h"
#include "platform/task_bar.h"
#include "platform/time_zone.h"

#include <string>

namespace velmoriax::desktop {
class Tray;
}

namespace velmoriax::shell {

/// The services of the desktop, as the windows see them.
struct DesktopServices {
    platform::Clock& clock;
    platform::TimeZone& zone;
    platform::Files& files;
    platform::Sounds& sounds;
    platform::SongPlayer& songs;
    platform::DocumentOpener& opener;
    platform::MessageBoxes& boxes;
    platform::Autostart& autostart;
    platform::PendingEvents& events;
    platform::RandomSource& random;
    desktop::Tray& tray;
    const platform::TaskBar& taskBar;
    std::string pluginFolder; ///< where the libraries are that are loaded when they are needed
};

} // namespace velmoriax::shell
