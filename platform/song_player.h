// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velmoriax::platform {

/// The song player: one device a song, and one song at a time. Every failure is silent.
class SongPlayer {
public:
    virtual ~SongPlayer() = default;

    enum class Mode { stopped, playing, none };

    /// Opens a song, closing the one before, and returns its device; 0 when there is no such song. Does not wait for a
    /// slow file: then the device is returned, and its mode becomes `none` when the song cannot be played.
    virtual int open(const std::string& path) = 0;

    /// Plays to the end of the song, where the mode becomes `stopped`.
    virtual void play(int device) = 0;

    /// `none` for a device that is not open, and for a song that cannot be played.
    virtual Mode mode(int device) const = 0;

    /// Leaves the song stopped at its start.
    virtual void rewind(int device) = 0;
    virtual void stop(int device) = 0;
    virtual void close(int device) = 0;
    virtual void closeAll() = 0;
};

} // namespace velmoriax::platform
