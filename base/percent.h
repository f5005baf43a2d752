// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velmoriax::base {

/// The share of `part` in `whole` in per cent, in single precision.
/// -1 when `part` is above `whole`; 0 when `part` is 0, and when the division has no finite result.
float percentOf(float part, float whole);

} // namespace velmoriax::base
