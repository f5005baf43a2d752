// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/cycle_table.h"

namespace velmoriax::biorhythm {

const std::array<CycleFacts, cycleCount> cycleTable{{
    {23, "Physical: ", "Physical", "Phy"},
    {28, "Emotional: ", "Emotional", "Emo"},
    {33, "Intellectual: ", "Intellectual", "Inte"},
    {38, "Intuitive: ", "Intuition", "Intu"},
}};

} // namespace velmoriax::biorhythm
