// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <optional>
#include <string_view>

namespace velmoriax::desktop {

/// How long a standard MIDI file plays, from its first to the last event of its longest track, with all changes of
/// tempo. A synthesizer goes on after that until its reverberation has faded. Nothing for a file without a track, or
/// with a track whose events are damaged.
std::optional<std::chrono::microseconds> midiLength(std::string_view bytes);

} // namespace velmoriax::desktop
