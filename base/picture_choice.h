// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace velmoriax::base {

/// A picture file, and how it is shown.
struct PictureChoice {
    std::string path;
    bool halfTurn = false; ///< shown upside down
    int edge = 0;          ///< pixels of width and height that a half turn leaves where they are, half on each side
};

} // namespace velmoriax::base
