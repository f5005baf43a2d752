// SPDX-License-Identifier: GPL-3.0-or-later
// A target under the fuzzer; the environment names it, so that the fuzzer's own child processes take the same one. A
// law that is broken ends the process, as any crash does.
#include "fuzz/targets.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>

namespace {

using velmoriax::fuzz::Target;
using velmoriax::fuzz::targets;

const Target& chosenTarget() {
    const char* name = std::getenv("VELMORIAX_FUZZ_TARGET");
    const auto found = std::ranges::find(targets, std::string_view(name ? name : ""), &Target::name);
    if (found != targets.end()) return *found;
    std::cerr << "VELMORIAX_FUZZ_TARGET names one of:";
    for (const Target& target : targets) std::cerr << ' ' << target.name;
    std::cerr << '\n';
    std::exit(EXIT_FAILURE);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Target& target = chosenTarget();
    target.run({reinterpret_cast<const char*>(data), size});
    return 0;
}
