// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "biorhythm/windows/plot_drawing.h"

#include <QWidget>

namespace velmoriax::biorhythm {

/// The line chart of thirty days. A screen reader can read its rows; their text is built on request.
class BioPlot : public QWidget {
    Q_OBJECT

public:
    explicit BioPlot(QWidget* parent = nullptr);

    /// Sets what draws the lines; it becomes a child of this widget.
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
