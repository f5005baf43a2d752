// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/message_boxes.h"
#include "platform/pending_events.h"
#include "platform/song_player.h"
#include "shell/options_store.h"

#include <string>

/// The song behind the oracle: which one, whether it plays, and how it is repeated.
namespace velmoriax::tarot {

/// The two words of the option SoundAmbient. The empty text counts as on, any other as off.
inline constexpr std::string_view ambientOnWord = "yes";
inline constexpr std::string_view ambientOffWord = "nop";

inline constexpr int timerMidiMs = 500;

struct AmbientSound {
    int midiDeviceId = 0; ///< 0 when no device is open
    int requests = 0;     ///< to start or to stop the sound: a later one has come when it differs
    std::string midiFile; ///< the song in use
    bool timerOn = false; ///< `TimerMidi` ticks
};

/// What the ambient sound takes from outside.
struct AmbientServices {
    platform::SongPlayer& songs;
    platform::PendingEvents& events;
    shell::OptionsStore& options;
    std::string applicationDirectory;
};

/// Closes the open device, if any, opens a song and plays it, unless the sound was closed or opened anew while events
/// were processed in between. A song that cannot be played leaves silence.
void openMidiDevice(AmbientSound& sound, const std::string& path, const AmbientServices& services);

void closeAllMidi(AmbientSound& sound, platform::SongPlayer& songs);

/// A tick of `TimerMidi`: a song that has ended starts again.
void tickMidi(const AmbientSound& sound, platform::SongPlayer& songs);

/// The window closes: the song stops. `midiDeviceId` and the timer stay as they are, and the ticks find nothing to do,
/// so that a window that is shown again is silent until its switch is turned off and on.
void stopMidi(AmbientSound& sound, platform::SongPlayer& songs);

/// The sound at the load of the window, by the options. True when the switch is shown as on, which a song that cannot
/// be played does not change.
bool startAmbient(AmbientSound& sound, const AmbientServices& services);

/// The switch, either way; it is remembered, unless it was used again meanwhile.
void switchAmbientOn(AmbientSound& sound, const AmbientServices& services);
void switchAmbientOff(AmbientSound& sound, const AmbientServices& services);

/// Asks for a song and stores it. The song that plays is not changed: the choice is used at the next start. A path that
/// the options file does not return as it was written is refused with a message, and the last choice is kept.
void chooseSong(platform::MessageBoxes& boxes, const AmbientServices& services);

} // namespace velmoriax::tarot
