// SPDX-License-Identifier: GPL-3.0-or-later
#undef QT_NO_KEYWORDS // the chart library's header writes them
#include "biorhythm/windows/cycle_graph.h"

#include "biorhythm/windows/bio_colours.h"
#include "widgets/conversions.h"

namespace velmoriax::biorhythm {

namespace {

constexpr double pixelsOfUnit = 0.1; ///< widths of 40 and 10 are 4 and 1 pixels
constexpr double edgeWidth = 1.5;
constexpr int rowsBetweenSeries = 3;

QColor edgeColour(const QColor& line, bool strong) {
    const QColor light((line.red() + 255) / 2, (line.green() + 255) / 2, (line.blue() + 255) / 2);
    return {light.red(), light.green(), light.blue(), strong ? 190 : 110};
}

/// The rows of a series' badges, from 0: none of them is that of another series or that of the reading.
std::array<int, 2> badgeRows(std::size_t series) {
    const int cycle = static_cast<int>(series % cycleCount) * rowsBetweenSeries;
    const int shift = series >= cycleCount ? 1 : 0;
    return {1 + cycle + shift, 17 + cycle + shift};
}

} // namespace

CycleGraph::CycleGraph(QCPAxis& keyAxis, QCPAxis& valueAxis, std::size_t series) :
    QCPGraph(&keyAxis, &valueAxis), series_(series), badge_(widgets::qtText(cycleTable[series % cycleCount].shortName)),
    badgeFont_(keyAxis.tickLabelFont()) {
    const SeriesLook& look = seriesTable[series];
    const QColor colour = colourOf(look.colour);
    setName(widgets::qtText(look.legend));
    setPen(QPen(colour, look.width * pixelsOfUnit, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    edge_ =
        QPen(edgeColour(colour, !isSecond()), pen().widthF() + edgeWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    if (isSecond()) badge_ += u'2';
    badgeFont_.setPointSizeF(badgeFont_.pointSizeF() * 0.9);
    badgeFont_.setBold(true);
    const QFontMetricsF metrics(badgeFont_);
    badgeSize_ = {metrics.horizontalAdvance(badge_) + 8, metrics.height()};
}

void CycleGraph::showColumnOf(const ChartData& chart) {
    QVector<QCPGraphData> points(chartRowCount);
    for (std::size_t row = 0; row < chartRowCount; ++row)
        points[static_cast<qsizetype>(row)] = {static_cast<double>(row + 1),
                                               static_cast<double>(chart.chartData[row][series_])};
    data()->set(points, true);
}

void CycleGraph::drawBadges(QCPPainter& painter) const {
    for (const int row : badgeRows(series_))
        if (row < dataCount()) drawBadge(painter, coordsToPixels(dataMainKey(row), dataMainValue(row)));
}

void CycleGraph::drawLinePlot(QCPPainter* painter, const QVector<QPointF>& lines) const {
    const QPen line = painter->pen();
    painter->setPen(edge_);
    drawPolyline(painter, lines);
    painter->setPen(line);
    QCPGraph::drawLinePlot(painter, lines);
}

void CycleGraph::drawLegendIcon(QCPPainter* painter, const QRectF& rect) const {
    painter->setAntialiasing(true);
    painter->setPen(pen());
    drawLinePlot(painter, {{rect.left(), rect.center().y()}, {rect.right(), rect.center().y()}});
}

void CycleGraph::drawBadge(QCPPainter& painter, QPointF centre) const {
    QRectF box({}, badgeSize_);
    box.moveCenter(centre);
    const QColor colour = pen().color();
    painter.setPen(edge_.color());
    painter.setBrush(isSecond() ? plotBackground() : colour);
    painter.drawRoundedRect(box, box.height() / 3, box.height() / 3);
    const bool darkBackground = isSecond() || qGray(colour.rgb()) < 100;
    painter.setPen(darkBackground ? QColor(Qt::white) : plotBackground());
    painter.setFont(badgeFont_);
    painter.drawText(box, Qt::AlignCenter, badge_);
}

void CycleBadges::draw(QCPPainter* painter) {
    for (const CycleGraph* graph : series_)
        if (graph->visible()) graph->drawBadges(*painter);
}

} // namespace velmoriax::biorhythm
