// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/colour.h"
#include "base/date_value.h"

#include <string>

namespace velmoriax::shell {

/// Where a value is heading.
enum class Trend { falling, level, rising };

/// The average gauge of the Card of the Day: a bar over the whole width, up from the middle for a positive day and down
/// for a negative one.
struct AverageGauge {
    std::string labelBioMedia; ///< average and rating
    std::string labelBioInfo;  ///< whose average it is, by the birth
    float value = 0;           ///< height of the bar, -1 to 1, in full precision
    base::Colour colour{};     ///< of the bar
    Trend trend = Trend::level;
};

/// Who works the gauge out.
class AverageGaugeSource {
public:
    virtual ~AverageGaugeSource() = default;

    /// Reads the birth anew. False when none is set: then a welcome is due, which `setWelcome` takes.
    virtual bool loadBirth() = 0;

    /// Takes a text as the one that the next alert starts from.
    virtual void setWelcome(const std::string& text) = 0;

    /// The gauge of the local moment `now`, for the birth read last.
    virtual AverageGauge drawBioMedia(base::DateValue now) = 0;
};

} // namespace velmoriax::shell
