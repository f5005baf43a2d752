// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "biorhythm/bio_chart.h"

#include <qcustomplot.h>

#include <span>

namespace velmoriax::biorhythm {

/// One series of the chart: a line with a light rim, which lifts the dark colours off the night, and with the cycle's
/// short name in badges upon it, so that colour is not the only thing that tells the lines apart.
/// The chart library's header wants a file without QT_NO_KEYWORDS.
class CycleGraph : public QCPGraph {
public:
    CycleGraph(QCPAxis& keyAxis, QCPAxis& valueAxis, std::size_t series);

    /// Takes its column of the chart.
    void take(const ChartData& chart);

    /// Draws the badges, which stand above the lines of all series.
    void drawBadges(QCPPainter& painter) const;

protected:
    void drawLinePlot(QCPPainter* painter, const QVector<QPointF>& lines) const override;
    void drawLegendIcon(QCPPainter* painter, const QRectF& rect) const override;

private:
    bool isSecond() const { return series_ >= cycleCount; }
    void drawBadge(QCPPainter& painter, QPointF centre) const;

    std::size_t series_;
    QString badge_;
    QFont badgeFont_;
    QSizeF badgeSize_;
    QPen rim_;
};

/// The badges of all series that are visible, on a layer above the lines.
class CycleBadges : public QCPLayerable {
public:
    CycleBadges(QCustomPlot& plot, std::span<CycleGraph* const> series) :
        QCPLayerable(&plot, QStringLiteral("overlay")), series_(series) {}

protected:
    void applyDefaultAntialiasingHint(QCPPainter* painter) const override { painter->setAntialiasing(true); }
    void draw(QCPPainter* painter) override;

private:
    std::span<CycleGraph* const> series_;
};

} // namespace velmoriax::biorhythm
