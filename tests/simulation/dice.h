// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <random>

namespace velmoriax::simulation {

/// Random numbers that depend on the seed alone, on every machine.
class Dice {
public:
    explicit Dice(std::uint64_t seed) : engine_(seed) {}

    std::uint64_t seed() { return engine_(); }
    int below(int end) { return static_cast<int>(engine_() % static_cast<std::uint64_t>(end)); }
    bool oneIn(int count) { return below(count) == 0; }

    template<typename List>
    auto& oneOf(List& list) {
        return list[static_cast<std::size_t>(below(static_cast<int>(std::size(list))))];
    }

private:
    std::mt19937_64 engine_;
};

} // namespace velmoriax::simulation
