// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/windows/gauge_box.h"

#include "shell/average_gauge.h"
#include "widgets/conversions.h"
#include "widgets/look.h"

#include <QPainter>

namespace velmoriax::tarot {

namespace {

constexpr double scaleWidth = 12; ///< x runs from 0 to 12
constexpr double tick = 5;        ///< outside the frame, at the middle line
constexpr double frame = 2;

} // namespace

GaugeBox::GaugeBox(QWidget* parent) : QAbstractButton(parent) {
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
}

void GaugeBox::draw(const shell::AverageGauge& gauge) {
    value_ = gauge.value;
    colour_ = QColor(gauge.colour.red, gauge.colour.green, gauge.colour.blue);
    setAccessibleName(widgets::qtText("Average of the biorhythms: " + gauge.labelBioMedia));
    update();
}

QSize GaugeBox::sizeHint() const {
    return {48, 104};
}

QRectF GaugeBox::area() const {
    return QRectF(rect()).adjusted(tick + frame, frame, -tick - frame, -frame);
}

void GaugeBox::paintFrame(QPainter& painter) const {
    const QRectF place = area();
    painter.fillRect(place, widgets::look::panel());
    painter.setPen(QPen(hasFocus() ? widgets::look::gold() : widgets::look::quietText(), 1));
    painter.drawRect(place.adjusted(-1, -1, 1, 1));
    const double middle = place.center().y();
    painter.drawLine(QPointF(place.left() - frame - tick, middle), QPointF(place.left() - frame, middle));
    painter.drawLine(QPointF(place.right() + frame, middle), QPointF(place.right() + frame + tick, middle));
}

void GaugeBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintFrame(painter);
    const QRectF place = area();
    painter.translate(place.left(), place.center().y());
    painter.scale(place.width() / scaleWidth, -place.height() / 2); // y runs from 1 at the top to -1
    painter.fillRect(QRectF(0, 0, scaleWidth, static_cast<double>(value_)).normalized(), colour_);
}

} // namespace velmoriax::tarot
