// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/date_value.h"
#include "base/picture_choice.h"

namespace velmoriax::shell {

/// Who chooses the picture of the personal tooltip.
class TipPictureSource {
public:
    virtual ~TipPictureSource() = default;

    /// The picture for the local moment `now`. May process pending events.
    virtual base::PictureChoice tipPicture(base::DateValue now) = 0;
};

} // namespace velmoriax::shell
