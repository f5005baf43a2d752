// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velmoriax::tarot {

/// Opens the icons of this room, ":/tarot/". They lie in a static library and have to be asked for.
void openTarotPictures();

} // namespace velmoriax::tarot
