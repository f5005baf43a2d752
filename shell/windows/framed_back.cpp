// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/windows/framed_back.h"

#include <QPainter>
#include <qdrawutil.h>

/// The pictures lie in a static library: the resource has to be asked for by name, outside any namespace.
static void openResources() {
    Q_INIT_RESOURCE(popups);
}

namespace velmoriax::shell {

namespace {

constexpr int cornerSize = 22; ///< the ornament in each corner of the frame

} // namespace

FramedBack::FramedBack(QWidget* parent) : QWidget(parent) {
    openResources();
}

void FramedBack::setBack(const QString& resource) {
    back_ = QPixmap(resource);
    update();
}

void FramedBack::paintEvent(QPaintEvent*) {
    if (back_.isNull()) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (size() == backSize()) return painter.drawPixmap(rect(), back_);
    const int inPicture = cornerSize * pixelsPerPoint;
    const QMargins corner(cornerSize, cornerSize, cornerSize, cornerSize);
    const QMargins pictureCorner(inPicture, inPicture, inPicture, inPicture);
    qDrawBorderPixmap(&painter, rect(), corner, back_, back_.rect(), pictureCorner);
}

} // namespace velmoriax::shell
