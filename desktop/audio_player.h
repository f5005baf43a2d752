// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "desktop/disk_files.h"
#include "desktop/sound_thread.h"
#include "platform/song_player.h"
#include "platform/sounds.h"

#include <mutex>

namespace velmoriax::desktop {

/// The wave sounds and the song, through one device. Nothing here waits for the sound: each call becomes a job of the
/// sound thread, which runs them in order. Without a device, a sound font or a file all calls return as quickly and
/// nothing is heard.
class AudioPlayer : public platform::Sounds, public platform::SongPlayer {
public:
    /// `pluginFolder` holds the sound library.
    AudioPlayer(const DiskFiles& files, std::string pluginFolder);

    void playWav(const std::string& name) override;

    int open(const std::string& path) override;
    void play(int device) override;
    Mode mode(int device) const override;
    void rewind(int device) override;
    void stop(int device) override;
    void close(int device) override;
    void closeAll() override;

private:
    int newDevice();
    /// Changes the mode of the open device; false when another one is open, or its song cannot be played.
    bool change(int device, Mode mode);
    void halt(int device);

    const DiskFiles& files_;
    mutable std::mutex guard_; ///< over the three below, which the sound thread touches too
    int lastDevice_ = 0;       ///< no number is used twice: a closed device stays closed
    int openDevice_ = 0;
    Mode mode_ = Mode::none;
    SoundThread thread_; ///< the last member, so that it ends before what it uses
};

} // namespace velmoriax::desktop
