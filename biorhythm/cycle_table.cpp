// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/cycle_table.h"

namespace velmoriax::biorhythm {

const std::array<CycleFacts, cycleCount> cycleTable{{
    {23, "Physical: ", "Physical"},
    {28, "Emotional: ", "Emotional"},
    {33, "Intellectual: ", "Intellectual"},
    {38, "Intuitive: ", "Intuition"},
}};

} // namespace velmoriax::biorhythm
