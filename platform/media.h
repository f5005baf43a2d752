// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velmoriax::platform {

/// The song player: one device a song. Every failure is silent.
class Media {
public:
    virtual ~Media() = default;

    enum class Mode { stopped, playing, none };

    /// Opens a song and gives its device, 0 when it cannot be opened. Does not wait for a slow file.
    virtual int open(const std::string& path) = 0;

    virtual void play(int device) = 0;

    /// `none` for a device that is not open.
    virtual Mode mode(int device) const = 0;

    virtual void rewind(int device) = 0;
    virtual void stop(int device) = 0;
    virtual void close(int device) = 0;
    virtual void closeAll() = 0;
};

} // namespace velmoriax::platform
