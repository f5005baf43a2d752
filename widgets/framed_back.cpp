// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/framed_back.h"

#include <QPainter>
#include <qdrawutil.h>

namespace velmoriax::widgets {

namespace {

constexpr int cornerSize = 22; ///< the ornament in each corner of the frame
constexpr int rightKept = 100; ///< the moon or the orbits at the right, which are not to grow broad

} // namespace

FramedBack::FramedBack(QWidget* parent) : QWidget(parent) {}

void FramedBack::setBack(const QString& resource) {
    back_ = QPixmap(resource);
    update();
}

void FramedBack::paintEvent(QPaintEvent*) {
    if (back_.isNull()) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (size() == backSize()) return painter.drawPixmap(rect(), back_);
    const QMargins kept(cornerSize, cornerSize, rightKept, cornerSize);
    qDrawBorderPixmap(&painter, rect(), kept, back_, back_.rect(), kept * pixelsPerPoint);
}

} // namespace velmoriax::widgets
