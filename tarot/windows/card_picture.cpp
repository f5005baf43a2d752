// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/windows/card_picture.h"

#include "shell/windows/turned_picture.h"

namespace velmoriax::tarot {

void showCard(shell::PictureBox& place, const DrawnCard& drawn, const platform::Files& files, int rimLeft) {
    const QImage picture = shell::loadPicture(files, drawn.picturePath);
    const bool inverted = drawn.orientation == Orientation::inverted;
    place.setPicture(inverted ? shell::turnedHalf(picture, rimLeft) : picture);
    if (!drawn.tip.empty()) place.setTip(QString::fromStdString(drawn.tip));
}

void showOwnBack(shell::PictureBox& place) {
    place.setPicture(QImage(QStringLiteral(":/tarot/card_back.jpg")));
}

void showMajorBack(shell::PictureBox& place, const platform::Files& files) {
    place.setPicture(shell::loadPicture(files, majorBackPath(files.applicationDirectory())));
}

} // namespace velmoriax::tarot
