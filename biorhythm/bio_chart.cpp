// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/bio_chart.h"

#include "biorhythm/cycle_engine.h"

#include <algorithm>

namespace velmoriax::biorhythm {

const std::array<SeriesLook, chartSeriesCount> seriesTable{{
    {"Physical", {72, 255, 72}, 40},
    {"Emotional", {255, 64, 64}, 40},
    {"Intellectual", {0, 0, 255}, 40},
    {"Intuition", {255, 255, 0}, 40},
    {"Physical2", {0, 255, 0}, 10},
    {"Emotional2", {255, 0, 0}, 10},
    {"Intellectual2", {0, 0, 255}, 10},
    {"Intuition2", {255, 255, 0}, 10},
}};

const std::array<BarLook, cycleCount> barTable{{
    {0.85, 2.1, {0, 255, 0}},
    {3.6, 4.85, {255, 0, 255}},
    {6.7, 7.95, {0, 255, 255}},
    {9.8, 11.05, {255, 255, 0}},
}};

const std::array<BarPictureLine, 2> barPictureLines{{
    {9, -1, 9, 1},
    {0, 0, 12, 0},
}};

namespace {

/// Fills four columns of the chart, the first of them `column`, with the days around an age.
void fillColumns(ChartData& chart, std::size_t column, float lived) {
    const float dayBefore = lived - 1.0F;
    for (std::size_t row = 0; row < chartRowCount; ++row) {
        const double t = (dayBefore - 14.0) + static_cast<double>(row + 1);
        const CycleValues values = cyclesAt(t);
        std::copy(values.begin(), values.end(), chart.chartData[row].begin() + static_cast<std::ptrdiff_t>(column));
    }
}

void fillRowLabels(ChartData& chart, base::CivilDate reading) {
    const int firstDay = base::dayNumber(reading) - static_cast<int>(readingRow);
    for (std::size_t row = 0; row < chartRowCount; ++row)
        chart.rowLabels[row] = base::civilDateOfDay(firstDay + static_cast<int>(row)).day;
}

} // namespace

bool drawsSecond(const SecondProfile& second, std::size_t savedProfiles) {
    return second.drawSecondFlag && savedProfiles >= 2;
}

ChartData mschart(float lived, SecondProfile& second, std::size_t savedProfiles, const base::CivilMoment& reading) {
    ChartData chart;
    fillRowLabels(chart, reading.date);
    fillColumns(chart, 0, lived);
    if (!drawsSecond(second, savedProfiles)) return chart;
    computeSecondLived(second, reading.date, reading.time);
    fillColumns(chart, cycleCount, second.secondLived);
    chart.seriesCount = chartSeriesCount;
    return chart;
}

} // namespace velmoriax::biorhythm
