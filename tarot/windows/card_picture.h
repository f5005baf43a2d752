// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tarot/drawn_card.h"
#include "widgets/picture_box.h"

namespace velmoriax::tarot {

/// Puts a drawn card into its place, turned when it fell inverted; `rimLeft` is handed to the half turn. A card with a
/// name brings its tip. Throws when the picture is missing.
void showCard(widgets::PictureBox& place, const DrawnCard& drawn, const platform::Files& files, int rimLeft = 0);

/// Puts the back into the place that is part of the window, so that it opens without a file.
void showOwnBack(widgets::PictureBox& place);

/// Puts the back of a major card into the place; the tip of the card before stays.
void showMajorBack(widgets::PictureBox& place, const platform::Files& files);

} // namespace velmoriax::tarot
