// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/pending_events.h"
#include "shell/options_store.h"
#include "shell/tip_line_source.h"
#include "shell/tip_picture_source.h"
#include "sky/sky_state.h"
#include "sky/zodiac.h"

#include <string>

namespace velmoriax::sky {

/// The sign's line of the tray tip.
class SignTip : public shell::TipLineSource {
public:
    SignTip(const SignSources& sources, SkyState& state) : sources_(sources), state_(state) {}

    std::string tipLine(base::DateValue now) override { return agent::tipsignzodiac(sources_, now, state_); }

private:
    SignSources sources_;
    SkyState& state_;
};

/// The Moon's line of the tray tip, and the Moon as the personal tooltip shows it.
class MoonTip : public shell::TipLineSource, public shell::TipPictureSource {
public:
    struct Services {
        const platform::Files& files;
        const platform::TimeZone& zone;
        platform::PendingEvents& events;
        const shell::OptionsStore& options;
    };

    explicit MoonTip(const Services& services) : services_(services) {}

    std::string tipLine(base::DateValue now) override;
    base::PictureChoice tipPicture(base::DateValue now) override;

private:
    Services services_;
};

} // namespace velmoriax::sky
