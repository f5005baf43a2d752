// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velmoriax::platform {

/// The one source of chance in the program.
class RandomSource {
public:
    virtual ~RandomSource() = default;

    virtual void seedFromClock() = 0;

    /// From 0, included, to 1, excluded, evenly.
    virtual float uniform() = 0;
};

} // namespace velmoriax::platform
