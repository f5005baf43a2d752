// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "biorhythm/bio_chart.h"

#include <string>

class QWidget;

namespace velmoriax::biorhythm {

/// Draws the chart. The class that does it is in a library that is loaded with the Biorhythm view, because it uses the
/// large chart library, which nothing else needs.
class PlotDrawing {
public:
    virtual ~PlotDrawing() = default;

    virtual void show(const ChartData& chart) = 0;
    virtual QWidget& widget() = 0;
};

/// Loads that library from the folder of plugins and creates a drawing, which its parent owns. Throws
/// base::RunTimeError when the library is missing.
PlotDrawing& loadPlotDrawing(const std::string& pluginFolder, QWidget& parent);

} // namespace velmoriax::biorhythm
