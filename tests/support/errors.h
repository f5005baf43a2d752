// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/run_time_error.h"

#include <optional>

namespace velmoriax::test {

/// What the program would not survive of a run; nothing when it comes through.
template<typename Run>
std::optional<base::RunTimeError> errorOf(Run run) {
    try {
        run();
    } catch (const base::RunTimeError& error) {
        return error;
    }
    return std::nullopt;
}

/// Its number alone.
template<typename Run>
std::optional<base::RunTimeError::Code> codeOf(Run run) {
    const auto error = errorOf(run);
    return error ? std::optional(error->code()) : std::nullopt;
}

} // namespace velmoriax::test
