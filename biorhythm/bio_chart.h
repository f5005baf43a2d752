// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "biorhythm/cycle_table.h"
#include "biorhythm/second_profile.h"

#include <array>
#include <string_view>

/// The two drawings of the Biorhythm view as values: the line chart of 30 days and the picture with the four bars.
namespace velmoriax::biorhythm {

inline constexpr std::size_t chartRowCount = 30;
inline constexpr std::size_t chartSeriesCount = 2 * cycleCount;
inline constexpr std::size_t readingRow = 14; ///< the row, counted from 0, of the date of reading

/// A line of the chart. The second profile's lines have the hue of the first one's and a quarter of their width.
struct SeriesLook {
    std::string_view legend;
    base::Colour colour;
    int width; ///< in a unit of its own: only the ratio of the widths has a meaning
};
extern const std::array<SeriesLook, chartSeriesCount> seriesTable;

/// A filled box of the bar picture, from 0 to the cycle's value, in its scale of 0 to 12 across and 1 to -1 down.
struct BarLook {
    double xFrom;
    double xTo;
    base::Colour colour;
};
extern const std::array<BarLook, cycleCount> barTable;

/// A white line over the bars.
struct BarPictureLine {
    double xFrom;
    double yFrom;
    double xTo;
    double yTo;
};
/// The first sets intuition apart from the three classic cycles, the second is the zero line.
extern const std::array<BarPictureLine, 2> barPictureLines;

/// The rows of the chart: whole days at one clock time, from 14 days before the reading to 15 days after it.
struct ChartData {
    std::size_t seriesCount = cycleCount;                                       ///< 4, or 8 with the second profile
    std::array<std::array<float, chartSeriesCount>, chartRowCount> chartData{}; ///< sines from -1 to 1
    std::array<int, chartRowCount> rowLabels{};                                 ///< day of the month
};

/// True when the chart draws two profiles: when the option is set and the list holds at least two.
bool drawsSecond(const SecondProfile& second, std::size_t savedProfiles);

/// The chart around the age `lived` (days) at `reading`, the date of reading with the clock's time. With two profiles
/// it computes the second one's age.
ChartData mschart(float lived, SecondProfile& second, std::size_t savedProfiles, const base::CivilMoment& reading);

} // namespace velmoriax::biorhythm
