// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string_view>

namespace velmoriax::tarot {

/// The description of a major card, 1 to 22, as the two to five pieces it is built from; empty for any other number.
/// The pieces are joined in this order with nothing between them: each brings the blank that parts it from the one
/// before. The second piece of the World alone brings none, so that its text runs on right after the full stop.
std::span<const std::string_view> cardDescriptionPieces(int card);

} // namespace velmoriax::tarot
