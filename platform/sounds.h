// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velmoriax::platform {

/// The short sounds of the program.
class Sounds {
public:
    virtual ~Sounds() = default;

    /// Plays a wave file of the application directory, such as "boop.wav", without waiting. A file that is
    /// missing or cannot be played is ignored.
    virtual void playWav(const std::string& name) = 0;
};

} // namespace velmoriax::platform
