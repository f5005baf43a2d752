// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "biorhythm/windows/plot_drawing.h"

#include <QWidget>

namespace velmoriax::biorhythm {

/// The line chart of thirty days. Who cannot see it hears its rows: the text is made when it is asked for.
class BioPlot : public QWidget {
    Q_OBJECT

public:
    explicit BioPlot(QWidget* parent = nullptr);

    /// Gives it what draws the lines; a child of this widget from now on.
    void takeDrawing(PlotDrawing& drawing);

    void showChart(const ChartData& chart);
    const ChartData& chart() const { return chart_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    ChartData chart_;
    PlotDrawing* drawing_ = nullptr;
};

} // namespace velmoriax::biorhythm
