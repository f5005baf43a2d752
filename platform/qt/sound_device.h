// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <optional>
#include <string>

struct Mix_Chunk;
typedef struct _Mix_Music Mix_Music;

namespace velmoriax::desktop {

/// The one sound device, through SDL's mixer: a wave sound and a song may sound together. It is opened when something
/// sounds and closed after a second of silence, so that it neither keeps a laptop awake nor other programs mute.
/// Opening and closing it and loading a song's sound font each take a tenth of a second or more: it belongs to a thread
/// of its own and is touched by no other.
class SoundDevice {
public:
    SoundDevice() = default;
    ~SoundDevice();
    SoundDevice(const SoundDevice&) = delete;
    SoundDevice& operator=(const SoundDevice&) = delete;

    /// Plays the bytes of a wave file in the place of the wave sound before.
    void playWave(std::string bytes);

    /// Takes the bytes of a song, known by a number from now on, in the place of the song before. False when they are
    /// no MIDI file.
    bool takeSong(int number, std::string bytes);

    /// Plays the song from its start. False when it cannot be played.
    bool startSong();

    void stopSong();
    void dropSong();

    struct SongEnd {
        int number;
        bool playable; ///< false for a song that fell silent as it began: its tracks are damaged
    };

    /// The song that has come to its end since the last call.
    std::optional<SongEnd> songEnd();

    /// Closes the device when nothing sounds any more; true while it is open.
    bool staysOpen();

private:
    using Clock = std::chrono::steady_clock;

    bool open();
    void close();
    bool loadSong();
    void freeWave();
    void freeMusic();

    bool isOpen_ = false;
    Clock::time_point lastSound_;

    std::string waveBytes_;
    Mix_Chunk* wave_ = nullptr;

    int songNumber_ = 0;
    std::string songBytes_; ///< kept, since closing the device unloads the song
    Mix_Music* music_ = nullptr;
    bool songStarted_ = false;
    Clock::time_point songStart_;
};

} // namespace velmoriax::desktop
