// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "biorhythm/bio_chart.h"

#include <string>

namespace velmoriax::biorhythm {

/// The chart as text for a screen reader. Each line is a row of the chart, with the day of the month and each series in
/// per cent, as in "1: Physical 44.72 %, Emotional -12.10 %".
std::string chartText(const ChartData& chart);

} // namespace velmoriax::biorhythm
