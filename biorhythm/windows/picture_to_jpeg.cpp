// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/windows/picture_to_jpeg.h"

#include "biorhythm/bio_texts.h"

#include <QBuffer>
#include <QImageWriter>

#include <algorithm>

namespace velmoriax::biorhythm {

QByteArrayList pictureEncoders() {
    return QImageWriter::supportedMimeTypes();
}

std::optional<QByteArray> encoderClsidFromMime(const QByteArray& mime, const QByteArrayList& encoders) {
    const auto found = std::ranges::find_if(
        encoders, [&](const QByteArray& type) { return type.compare(mime, Qt::CaseInsensitive) == 0; });
    return found == encoders.end() ? std::nullopt : std::optional(*found);
}

QByteArray pictureBytes(const QImage& picture, const char* format, int quality) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    return picture.save(&buffer, format, quality) ? bytes : QByteArray();
}

bool savePictureAsJpeg(const QImage& picture, const std::string& path, int quality, const JpegSaving& saving) {
    constexpr int bestQuality = 100;
    if (picture.isNull()) return false;
    if (!encoderClsidFromMime("image/jpeg", saving.encoders)) {
        saving.boxes.show(platform::BoxIcon::none, std::string(text::noEncoder), std::string(text::encoderErrorTitle));
        return false;
    }
    const QByteArray bytes = pictureBytes(picture, "JPG", std::min(quality, bestQuality));
    return !bytes.isEmpty() && saving.files.replace(path, bytes.toStdString());
}

} // namespace velmoriax::biorhythm
