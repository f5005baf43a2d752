// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/files.h"

#include <QImage>

#include <string>
#include <string_view>

namespace velmoriax::shell {

/// A moon picture as the hemisphere sees the Moon: half a turn for the south. Throws when the picture is missing.
QImage moonPicture(const platform::Files& files, const std::string& name, std::string_view hemisferio);

} // namespace velmoriax::shell
