// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velmoriax::tarot {

/// Registers the pictures of these windows, ":/tarot/" and ":/oracle/". Resources of a static library are not
/// registered by themselves.
void openTarotPictures();

} // namespace velmoriax::tarot
