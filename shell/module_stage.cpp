// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/module_stage.h"

#include <array>
#include <cstddef>

namespace velmoriax::shell {

namespace {

using enum Answer;

/// A row a request, a column a stage.
constexpr std::array<std::array<Answer, 5>, 4> answers{{
    //            empty   loading  loaded  handingOver  leaving
    /* load     */ {act, wait, act, ignore, ignore},
    /* handOver */ {ignore, wait, act, wait, ignore},
    /* command  */ {ignore, act, act, act, ignore},
    /* exit     */ {act, act, act, act, ignore},
}};

} // namespace

Answer answerTo(Request request, Stage stage) {
    return answers[static_cast<std::size_t>(request)][static_cast<std::size_t>(stage)];
}

} // namespace velmoriax::shell
