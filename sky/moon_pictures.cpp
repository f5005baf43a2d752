// SPDX-License-Identifier: GPL-3.0-or-later
#include "sky/moon_pictures.h"

#include "base/rounding.h"
#include "shell/options.h"

namespace velmoriax::sky {

namespace {

constexpr int stepsOfPicture = 6; ///< of two degrees each
constexpr int lastStep = 180;

std::string numbered(int picture) {
    return "moon" + std::to_string(picture) + ".gif";
}

} // namespace

std::string moonPictureName(float angle, MoonPictureRule rule) {
    const int half = halfPhaseAngle(angle);
    if (rule == MoonPictureRule::cardOfDay) return numbered(half / stepsOfPicture);
    // Here a picture holds its upper edge, and the first one 0 as well, since the division cuts toward zero.
    return half > lastStep ? std::string{} : numbered((half - 1) / stepsOfPicture);
}

std::int16_t halfPhaseAngle(float angle) {
    return base::nearestInt16(angle / 2);
}

bool turnsMoonPicture(std::string_view hemisferio) {
    return hemisferio == shell::word::sur;
}

base::PictureChoice moonPicture(const platform::Files& files, const std::string& name, std::string_view hemisferio) {
    constexpr int edge = 4; // of the frame that the picture once had
    return {files.applicationDirectory() + std::string(moonPictureDirectory) + name, turnsMoonPicture(hemisferio),
            edge};
}

std::string drawDayMoon(const MoonEngine& engine, base::DateValue moment) {
    return moonPictureName(engine.moonPhaseAngle(moment), MoonPictureRule::cardOfDay);
}

} // namespace velmoriax::sky
