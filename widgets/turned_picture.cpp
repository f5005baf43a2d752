// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/turned_picture.h"

#include "base/picture_rotation.h"
#include "widgets/picture_box.h"

namespace velmoriax::widgets {

namespace {

constexpr int bitsPerByte = 8;

/// A picture that packs several pixels into a byte has to be unpacked before its pixels can be moved.
QImage withWholeBytes(const QImage& picture) {
    return picture.depth() % bitsPerByte == 0 ? picture : picture.convertToFormat(QImage::Format_Indexed8);
}

} // namespace

QImage turnedHalf(const QImage& picture, int rimLeft) {
    QImage turned = withWholeBytes(picture);
    if (turned.isNull()) return turned;
    const base::PixelSurface surface{{turned.bits(), static_cast<std::size_t>(turned.sizeInBytes())},
                                     turned.width(),
                                     turned.height(),
                                     static_cast<int>(turned.bytesPerLine()),
                                     turned.depth() / bitsPerByte};
    base::rotatePicture(surface, base::turn::half, rimLeft / 2, rimLeft / 2, turned.width() - rimLeft,
                        turned.height() - rimLeft);
    return turned;
}

QImage loadChoice(const platform::Files& files, const base::PictureChoice& choice) {
    const QImage picture = loadPicture(files, choice.path);
    return choice.halfTurn ? turnedHalf(picture, choice.edge) : picture;
}

} // namespace velmoriax::widgets
