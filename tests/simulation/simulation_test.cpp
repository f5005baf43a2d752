// SPDX-License-Identifier: GPL-3.0-or-later
// The whole program on a desktop that chance drives, each seed in a process of its own. SIMULATION_SEEDS says how many
// seeds (100), SIMULATION_FIRST the first one, SIMULATION_STEPS how many steps each (60),
// SIMULATION_DAYS over how many days the memory is watched (60).
#include "apart.h"
#include "simulation.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>

namespace velmoriax::simulation {
namespace {

std::uint64_t numberOf(const char* variable, std::uint64_t otherwise) {
    const char* value = std::getenv(variable);
    return value ? std::strtoull(value, nullptr, 10) : otherwise;
}

Sequence sequenceOf(std::uint64_t seed) {
    Dice dice(seed);
    Sequence steps(numberOf("SIMULATION_STEPS", 60));
    std::ranges::generate(steps, [&] { return dice.seed(); });
    return steps;
}

TEST(Simulation, TheLawsHoldWhateverHappens) {
    const std::uint64_t first = numberOf("SIMULATION_FIRST", 1), count = numberOf("SIMULATION_SEEDS", 100);
    std::size_t actions = 0;
    for (std::uint64_t seed = first; seed < first + count; ++seed) {
        const Outcome outcome = runApart(sequenceOf(seed));
        actions += outcome.trace.size();
        if (outcome.wrong.empty()) continue;
        const Outcome shortest = shortened(sequenceOf(seed), outcome);
        ADD_FAILURE() << "seed " << seed << ": " << shortest.wrong << "\n" << shortest.traceText();
        if (count == 100) return;
    }
    std::cout << count << " seeds, " << actions << " lines of what happened\n";
}

TEST(Simulation, TheSameSeedGivesTheSameRun) {
    const Outcome once = runApart(sequenceOf(1)), again = runApart(sequenceOf(1));
    EXPECT_GT(once.trace.size(), 30U);
    EXPECT_EQ(once.traceText(), again.traceText());
}

/// The toolkit keeps drawn icons, glyphs and names that it has met; beyond them nothing is kept.
TEST(Simulation, MemoryDoesNotGrowWithTheDays) {
    constexpr std::size_t keptByToolkit = 1024, keptOfADay = 1; // kilobytes
    const std::size_t days = numberOf("SIMULATION_DAYS", 60);
    const auto allocated = allocatedAfter(static_cast<int>(days / 12));
    ASSERT_EQ(allocated.size(), 2U);
    std::cout << allocated[0] << " KB after " << days / 12 << " days, " << allocated[1] << " KB after " << days << "\n";
    EXPECT_LT(allocated[1], allocated[0] + keptByToolkit + keptOfADay * days);
}

} // namespace
} // namespace velmoriax::simulation
