// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/picture_choice.h"
#include "platform/files.h"

#include <QImage>

namespace velmoriax::widgets {

/// The picture turned by half a turn, as a box shows it. `rimLeft` is what the box's frame takes off the picture's
/// width and height: 4 for a suit card and for the moon, 0 for the oracle's final card. Our boxes have no frame and
/// scale their pictures, so the picture itself is turned, and the rim stays only as the thin edge that the frame
/// covered: half of it on each side, so that what is turned does not move. Turning twice returns the picture.
QImage turnedHalf(const QImage& picture, int rimLeft);

/// Reads a picture and turns it as the choice says. Throws as `loadPicture` does.
QImage loadChoice(const platform::Files& files, const base::PictureChoice& choice);

} // namespace velmoriax::widgets
