// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/files.h"
#include "platform/message_boxes.h"

#include <QByteArrayList>
#include <QImage>

#include <optional>

namespace velmoriax::biorhythm {

/// The MIME types of the formats in which pictures can be written.
QByteArrayList pictureEncoders();

/// The first of the encoders for a MIME type, compared without regard to case; nothing when there is none.
std::optional<QByteArray> encoderClsidFromMime(const QByteArray& mime, const QByteArrayList& encoders);

/// A picture's bytes in a format of the toolkit, such as "BMP"; empty on failure. `quality` is from 0 to 100, or -1 for
/// the format's default.
QByteArray pictureBytes(const QImage& picture, const char* format, int quality = -1);

/// What saving a picture uses.
struct JpegSaving {
    platform::Files& files;
    platform::MessageBoxes& boxes;
    QByteArrayList encoders = pictureEncoders();
};

/// Writes the picture as a JPEG file of a quality from 0 to 100. Shows a message when there is no encoder. True when
/// the file was saved.
bool savePictureAsJpeg(const QImage& picture, const std::string& path, int quality, const JpegSaving& saving);

} // namespace velmoriax::biorhythm
