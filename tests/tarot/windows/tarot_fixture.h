// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/window_fixture.h"
#include "tarot/windows/tarot_windows.h"

namespace velmoriax::tarot {

struct FakeGauge : shell::AverageGaugeSource {
    shell::AverageGauge gauge;
    bool loadBirth() override { return true; }
    void setWelcome(const std::string&) override {}
    shell::AverageGauge drawBioMedia(base::DateValue) override { return gauge; }
};

/// The windows of the cards alone.
struct TarotFixture : test::WindowFixture {
    TarotFixture() { addWindows(windows, context, tarot); }

    shell::ModuleWindow& open(const shell::ModuleInfo& module) {
        switcher.loadFirst(module.windowName);
        return *loadedModule();
    }

    FakeGauge gauge;
    sky::SkyState sky;
    TarotState cards;
    TarotContext tarot{cards, sky, gauge};
};

} // namespace velmoriax::tarot
