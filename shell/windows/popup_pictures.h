// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velmoriax::shell {

/// Opens the pictures of notification and tooltip, ":/popups/". They are in a static library and have to be asked for.
void openPopupPictures();

} // namespace velmoriax::shell
