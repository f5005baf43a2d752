// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

namespace velmoriax::sky {

/// What a window shows of the sign. It lives on from search to search: what a search does not write stays.
struct SignReading {
    std::int16_t index = 0;    ///< Aries 0 to Pisces 11
    std::string picturePath;   ///< the sign's small picture, for `ImageZod`
    std::string label;         ///< the sign's name, for `LabelZod`
    std::string tip;           ///< the tip of `ImageZod`
    bool alertVisible = false; ///< whether `ImageAlert` is shown: the day is a change of sign
    std::string alertTip;      ///< the tip of `ImageAlert`
    std::string changeText;    ///< universal time of the change, with its date in Another Day; empty when there is none
    std::string seasonText;    ///< stays as it was outside the months in which a season begins
};

/// What the searches for the sign share.
struct SkyState {
    std::int16_t currentSignIndex = 0; ///< the sign that a window found last, Aries 0 to Pisces 11
    std::string
        signImagePath;     ///< the directory of the sign pictures, set by the fixed table; windows read `picturePath`
    std::string signoText; ///< the agent's sign, with " (<=>)" behind it on a day of change

    SignReading cardOfDaySign;  ///< of `FrmCartaDia`
    SignReading anotherDaySign; ///< of `FrmCalendar`
};

} // namespace velmoriax::sky
