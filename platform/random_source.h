// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velmoriax::platform {

/// The source of all random numbers of the program.
class RandomSource {
public:
    virtual ~RandomSource() = default;

    /// Starts a new sequence, which depends on the time.
    virtual void seedFromClock() = 0;

    /// A number from 0, included, to 1, excluded, all equally likely.
    virtual float uniform() = 0;
};

} // namespace velmoriax::platform
