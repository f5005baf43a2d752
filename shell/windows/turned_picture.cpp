// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/windows/turned_picture.h"

#include "tarot/picture_rotation.h"

namespace velmoriax::shell {

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
    const tarot::PixelSurface surface{{turned.bits(), static_cast<std::size_t>(turned.sizeInBytes())},
                                      turned.width(),
                                      turned.height(),
                                      static_cast<int>(turned.bytesPerLine()),
                                      turned.depth() / bitsPerByte};
    tarot::rotatePicture(surface, tarot::turn::half, rimLeft / 2, rimLeft / 2, turned.width() - rimLeft,
                         turned.height() - rimLeft);
    return turned;
}

} // namespace velmoriax::shell
