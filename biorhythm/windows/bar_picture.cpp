// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/windows/bar_picture.h"

#include "biorhythm/bio_chart.h"
#include "biorhythm/windows/bio_colours.h"
#include "widgets/accessible_role.h"
#include "widgets/conversions.h"
#include "widgets/look.h"

#include <QPainter>

namespace velmoriax::biorhythm {

namespace {

constexpr double scaleWidth =
    12; ///< the picture's scale is from 0 to 12 across, and from 1 at the top to -1 at the bottom

/// The pixel of a point of that scale.
QPointF at(const QRectF& field, double x, double y) {
    return {field.left() + field.width() * x / scaleWidth, field.center().y() - field.height() / 2 * y};
}

} // namespace

BarPicture::BarPicture(QWidget* parent) : QWidget(parent) {
    widgets::setAccessibleRole(*this, QAccessible::Graphic);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void BarPicture::setBars(const CycleValues& bars) {
    bars_ = bars;
    QStringList values;
    for (std::size_t i = 0; i < cycleCount; ++i)
        values << QStringLiteral("%1 %2 %").arg(widgets::qtText(cycleTable[i].name)).arg(qRound(bars[i] * 100));
    setAccessibleDescription(values.join(QStringLiteral(", ")));
    update();
}

QSize BarPicture::sizeHint() const {
    const QFontMetrics metrics(font());
    return {metrics.averageCharWidth() * 44, metrics.height() * 8};
}

QSize BarPicture::minimumSizeHint() const {
    const QFontMetrics metrics(font());
    return {metrics.averageCharWidth() * 30, metrics.height() * 6};
}

QRectF BarPicture::field() const {
    const QFontMetrics metrics(font());
    const double left = metrics.horizontalAdvance(QStringLiteral("-100")) + 8;
    return QRectF(rect()).adjusted(left, 1, -1, -metrics.height() - 4);
}

void BarPicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(widgets::look::panel());
    painter.setBrush(plotBackground());
    painter.drawRoundedRect(field(), 4, 4);
    paintBars(painter);
    paintScale(painter);
}

void BarPicture::paintScale(QPainter& painter) const {
    const QRectF frame = field();
    const double line = QFontMetrics(font()).height();
    painter.setPen(widgets::look::quietText());
    const QRectF side(0, frame.top(), frame.left() - 6, frame.height());
    painter.drawText(side, Qt::AlignRight | Qt::AlignTop, QStringLiteral("100"));
    painter.drawText(side, Qt::AlignRight | Qt::AlignBottom, QStringLiteral("-100"));
    for (std::size_t i = 0; i < cycleCount; ++i) {
        const double middle = at(frame, (barTable[i].xFrom + barTable[i].xTo) / 2, -1).x();
        painter.setPen(colourOf(barTable[i].colour));
        painter.drawText(QRectF(middle - 4 * line, frame.bottom() + 3, 8 * line, line), Qt::AlignCenter,
                         widgets::qtText(cycleTable[i].shortName));
    }
    painter.setPen(Qt::white);
    for (const BarPictureLine& white : barPictureLines)
        painter.drawLine(at(frame, white.xFrom, white.yFrom), at(frame, white.xTo, white.yTo));
}

void BarPicture::paintBars(QPainter& painter) const {
    const QRectF frame = field();
    for (std::size_t i = 0; i < cycleCount; ++i) {
        const QRectF bar(at(frame, barTable[i].xFrom, 0), at(frame, barTable[i].xTo, static_cast<double>(bars_[i])));
        painter.fillRect(bar.normalized(), colourOf(barTable[i].colour));
    }
}

} // namespace velmoriax::biorhythm
