// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/picture_choice.h"
#include "platform/files.h"
#include "sky/moon_engine.h"

#include <cstdint>
#include <string>
#include <string_view>

/// Which of the moon pictures is shown: from new moon through full and back, twelve degrees a picture.
namespace velmoriax::sky {

/// The directory of the pictures behind the application directory.
inline constexpr std::string_view moonPictureDirectory = "\\lunagif\\";

/// The two windows choose by rules that differ at the edges.
enum class MoonPictureRule {
    cardOfDay,  ///< "moon0.gif" to "moon30.gif": the last one from 359 degrees on, at the end of a long lunation
    anotherDay, ///< "moon0.gif" to "moon29.gif", and no name above 361 degrees: the picture that is shown is kept
};

std::string moonPictureName(float angle, MoonPictureRule rule);

/// Half of the phase angle, rounded: new moon about 0, first quarter 45, full moon 90, last quarter 135.
std::int16_t halfPhaseAngle(float angle);

/// True when a moon picture is given a half turn. It is drawn as the north sees the Moon.
bool turnsMoonPicture(std::string_view hemisferio);

/// A moon picture as the hemisphere sees the Moon: half a turn for the south.
base::PictureChoice moonPicture(const platform::Files& files, const std::string& name, std::string_view hemisferio);

/// The picture name of a moment in universal time, by the rule of the Card of the Day.
std::string drawDayMoon(const MoonEngine& engine, base::DateValue moment);

} // namespace velmoriax::sky
