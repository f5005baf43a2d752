// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "biorhythm/alert_engine.h"
#include "biorhythm/bio_state.h"
#include "biorhythm/bio_view.h"
#include "biorhythm/second_profile.h"
#include "shell/background_agent.h"
#include "shell/options_store.h"
#include "shell/shell_state.h"
#include "sky/sky_state.h"
#include "tarot/card_catalogue.h"
#include "tarot/oracle_reading.h"

#include <cstdint>

namespace velmoriax::shell {

/// Everything that outlives a window: one plain record a subsystem, owned by the entry and passed down by reference.
struct ProcessRecord {
    explicit ProcessRecord(platform::Files& files) : options(files) {}

    ShellState shell;
    OptionsStore options;
    tarot::CardState cards;
    sky::SkyState sky;
    biorhythm::BioState bio;
    biorhythm::AlertRecord alerts;
    biorhythm::BioViewState bioView; ///< what the steppers of the Biorhythm view hold
    biorhythm::SecondProfile second;
    AgentRecord agent;
    std::int16_t gaugeTicks = 0; ///< minutes since the average gauge was drawn anew, over all changes of module
    tarot::OracleState oracle;
};

} // namespace velmoriax::shell
