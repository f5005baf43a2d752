// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "biorhythm/bio_chart.h"

#include <qcustomplot.h>

#include <span>

namespace velmoriax::biorhythm {

/// One series of the chart. The line has a light edge, so that dark colours can be seen on the dark background, and
/// badges with the cycle's short name, so that the lines do not differ by colour alone. A file that includes this
/// header has to undefine QT_NO_KEYWORDS first, for the chart library's header.
class CycleGraph : public QCPGraph {
public:
    CycleGraph(QCPAxis& keyAxis, QCPAxis& valueAxis, std::size_t series);

    /// Shows its column of the chart.
    void showColumnOf(const ChartData& chart);

    /// Draws the badges: separately, because they are above the lines of all series.
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
    QPen edge_;
};

/// The badges of all visible series, on a layer above the lines.
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
