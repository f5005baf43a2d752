// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/targets.h"
#include "support/helpers.h"

namespace velmoriax::fuzz {
namespace {

class Corpus : public testing::TestWithParam<Target> {};

/// The inputs that were worth keeping: hand-made ones, and those that led the fuzzer somewhere new or found a fault.
TEST_P(Corpus, KeepsTheLaws) {
    int inputs = 0;
    const std::filesystem::path folder = std::filesystem::path(VELMORIAX_CORPUS_DIR) / GetParam().name;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        EXPECT_NO_THROW(GetParam().run(test::bytesOf(entry.path()))) << entry.path();
        ++inputs;
    }
    EXPECT_GT(inputs, 0) << folder;
    EXPECT_NO_THROW(GetParam().run({})) << "nothing at all";
}

INSTANTIATE_TEST_SUITE_P(Readers, Corpus, testing::ValuesIn(targets),
                         [](const auto& info) { return std::string(info.param.name); });

} // namespace
} // namespace velmoriax::fuzz
