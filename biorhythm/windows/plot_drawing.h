// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "biorhythm/bio_chart.h"

#include <string>

class QWidget;

namespace velmoriax::biorhythm {

/// What draws the chart. It comes from a library of its own, since the chart library is large and only the biorhythm
/// view needs it.
class PlotDrawing {
public:
    virtual ~PlotDrawing() = default;

    virtual void show(const ChartData& chart) = 0;
    virtual QWidget& widget() = 0;
};

/// Loads the drawing's library from the folder of the program's libraries and makes a drawing that lives as long as its
/// parent. Throws base::RunTimeError when the library is missing.
PlotDrawing& loadPlotDrawing(const std::string& pluginFolder, QWidget& parent);

} // namespace velmoriax::biorhythm
