// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/windows/picture_box.h"
#include "tarot/drawn_card.h"

namespace velmoriax::tarot {

/// Puts a drawn card into its place, turned when it fell inverted; `rimLeft` is handed to the half turn. A card with a
/// name brings its tip. Throws when the picture is missing.
void showCard(shell::PictureBox& place, const DrawnCard& drawn, const platform::Files& files, int rimLeft = 0);

/// Puts the back into the place that is part of the window, so that it opens without a file.
void showOwnBack(shell::PictureBox& place);

/// Puts the back of a major card into the place; the tip of the card before stays.
void showMajorBack(shell::PictureBox& place, const platform::Files& files);

} // namespace velmoriax::tarot
