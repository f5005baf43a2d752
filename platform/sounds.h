// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velmoriax::platform {

class Sounds {
public:
    virtual ~Sounds() = default;

    /// Plays a wave file of the application directory, such as "boop.wav", without waiting. What is missing or cannot
    /// be played stays silent.
    virtual void playWav(const std::string& name) = 0;
};

} // namespace velmoriax::platform
