// SPDX-License-Identifier: GPL-3.0-or-later
#include "sky/sky_tips.h"

#include "sky/moon_engine.h"
#include "sky/moon_pictures.h"
#include "sky/moon_texts.h"
#include "sky/time_zone_shift.h"

namespace velmoriax::sky {

std::string MoonTip::tipLine(base::DateValue now) {
    return lunatip(MoonEngine(services_.events), localToUniversal(now, services_.zone));
}

base::PictureChoice MoonTip::tipPicture(base::DateValue now) {
    const base::DateValue moment = localToUniversal(now, services_.zone);
    const std::string name = drawDayMoon(MoonEngine(services_.events), moment);
    return moonPicture(services_.files, name, services_.options.holders.hemisferio);
}

} // namespace velmoriax::sky
