// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/options_store.h"
#include "shell/shell_state.h"
#include "tarot/card_catalogue.h"
#include "tarot/oracle_reading.h"

namespace velmoriax::shell {

/// Everything that outlives a window: one plain record a subsystem, owned by the entry and passed down by reference.
struct ProcessRecord {
    explicit ProcessRecord(platform::Files& files) : options(files) {}

    ShellState shell;
    OptionsStore options;
    tarot::CardState cards;
    tarot::OracleState oracle;
};

} // namespace velmoriax::shell
