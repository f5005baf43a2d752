// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/files.h"
#include "platform/message_boxes.h"

#include <QByteArrayList>
#include <QImage>

#include <optional>

namespace velmoriax::biorhythm {

/// The MIME types that pictures can be written in here.
QByteArrayList pictureEncoders();

/// The first of the encoders for a MIME type, compared without regard to case; nothing when there is none.
std::optional<QByteArray> encoderClsidFromMime(const QByteArray& mime, const QByteArrayList& encoders);

/// A picture's bytes in a format of the toolkit, such as "BMP"; empty on failure. `quality` is from 0 to 100, -1 for
/// the format's own.
QByteArray pictureBytes(const QImage& picture, const char* format, int quality = -1);

/// Writes the picture as a JPEG file. Without an encoder tells so; true when the file was saved.
bool savePictureAsJpeg(const QImage& picture, platform::Files& files, platform::MessageBoxes& boxes,
                       const std::string& path, int quality, const QByteArrayList& encoders);

} // namespace velmoriax::biorhythm
