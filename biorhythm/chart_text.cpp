// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/chart_text.h"

#include "biorhythm/cycle_engine.h"

namespace velmoriax::biorhythm {

namespace {

std::string rowText(const ChartData& chart, std::size_t row) {
    std::string text = std::to_string(chart.rowLabels[row]);
    if (row == readingRow) text += ", date of biorhythm";
    for (std::size_t series = 0; series < chart.seriesCount; ++series) {
        text += series == 0 ? ": " : ", ";
        text.append(seriesTable[series].legend).append(" ");
        text += percentText(chart.chartData[row][series]) + " %";
    }
    return text;
}

} // namespace

std::string chartText(const ChartData& chart) {
    std::string text;
    for (std::size_t row = 0; row < chartRowCount; ++row) text += rowText(chart, row) + "\n";
    return text;
}

} // namespace velmoriax::biorhythm
