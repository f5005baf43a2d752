// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <optional>
#include <string>

namespace velmoriax::desktop {

/// The one sound device: a wave sound and a song may sound together. It is opened when something sounds and closed
/// after a second of silence, so that it neither keeps a laptop awake nor other programs mute. Opening it, closing it
/// and loading the sound font each take a tenth of a second or more, so that only a thread of its own uses it.
class SoundDevice {
public:
    virtual ~SoundDevice() = default;

    /// Plays the bytes of a wave file; the wave sound before it ends.
    virtual void playWave(std::string bytes) = 0;

    /// Replaces the song by the bytes of another one, which has that number from now on. False when they are no MIDI
    /// file.
    virtual bool takeSong(int number, std::string bytes) = 0;

    /// Plays the song from its start. False when it cannot be played.
    virtual bool startSong() = 0;

    virtual void stopSong() = 0;
    virtual void dropSong() = 0;

    struct SongEnd {
        int number;
        bool playable; ///< false for a song that ended as soon as it began: its tracks are damaged
    };

    /// The song that has ended since the last call; nothing when none has.
    virtual std::optional<SongEnd> songEnd() = 0;

    /// Closes the device after a second of silence; true while it is open.
    virtual bool staysOpen() = 0;
};

/// The device of the sound library in a folder. The library depends on forty others, whose loading takes as long as the
/// rest of the program's start, so that it is loaded only when something is to sound for the first time. Where it is
/// missing a device is returned that stays silent and plays no song.
std::unique_ptr<SoundDevice> loadSoundDevice(const std::string& pluginFolder);

} // namespace velmoriax::desktop
