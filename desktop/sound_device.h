// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <optional>
#include <string>

namespace velmoriax::desktop {

/// The one sound device: a wave sound and a song may sound together. It is opened when something sounds and closed
/// after a second of silence, so that it neither keeps a laptop awake nor other programs mute. Opening and closing it
/// and loading a song's sound font each take a tenth of a second or more: it belongs to a thread of its own and is
/// touched by no other.
class SoundDevice {
public:
    virtual ~SoundDevice() = default;

    /// Plays the bytes of a wave file in the place of the wave sound before.
    virtual void playWave(std::string bytes) = 0;

    /// Takes the bytes of a song, known by a number from now on, in the place of the song before. False when they are
    /// no MIDI file.
    virtual bool takeSong(int number, std::string bytes) = 0;

    /// Plays the song from its start. False when it cannot be played.
    virtual bool startSong() = 0;

    virtual void stopSong() = 0;
    virtual void dropSong() = 0;

    struct SongEnd {
        int number;
        bool playable; ///< false for a song that fell silent as it began: its tracks are damaged
    };

    /// The song that has come to its end since the last call.
    virtual std::optional<SongEnd> songEnd() = 0;

    /// Closes the device when nothing sounds any more; true while it is open.
    virtual bool staysOpen() = 0;
};

/// The device of the sound library in a folder. The library brings two score others with it, whose loading takes as
/// long as the rest of the program's start: so it is loaded when something is to sound for the first time. Where it is
/// missing the device that comes back stays silent and plays no song.
std::unique_ptr<SoundDevice> loadSoundDevice(const std::string& pluginFolder);

} // namespace velmoriax::desktop
