// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/windows/card_picture.h"

#include "widgets/conversions.h"
#include "widgets/turned_picture.h"

namespace velmoriax::tarot {

namespace {

/// The tip of the card shown before stays, as a click describes that card still.
void showBack(widgets::PictureBox& place, const QImage& back) {
    place.setPicture(back);
    place.setAccessibleName(QStringLiteral("Card, face down"));
}

} // namespace

void showCard(widgets::PictureBox& place, const DrawnCard& drawn, const platform::Files& files, int rimLeft) {
    const QImage picture = widgets::loadPicture(files, drawn.cardPath);
    const bool inverted = drawn.orientation == Orientation::inverted;
    place.setPicture(inverted ? widgets::turnedHalf(picture, rimLeft) : picture);
    if (!drawn.tip.empty()) place.setTip(widgets::qtText(drawn.tip));
}

void showOwnBack(widgets::PictureBox& place) {
    showBack(place, QImage(QStringLiteral(":/tarot/card_back.jpg")));
}

void showMajorBack(widgets::PictureBox& place, const platform::Files& files) {
    showBack(place, widgets::loadPicture(files, majorBackPath(files.applicationDirectory())));
}

} // namespace velmoriax::tarot
