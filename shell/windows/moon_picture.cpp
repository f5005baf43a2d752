// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/windows/moon_picture.h"

#include "shell/windows/picture_box.h"
#include "shell/windows/turned_picture.h"
#include "sky/moon_pictures.h"

namespace velmoriax::shell {

namespace {

constexpr int rimLeft = 4; ///< the edge that a moon keeps when it is turned

} // namespace

QImage moonPicture(const platform::Files& files, const std::string& name, std::string_view hemisferio) {
    const std::string path = files.applicationDirectory() + std::string(sky::moonPictureDirectory) + name;
    const QImage picture = loadPicture(files, path);
    return sky::turnsMoonPicture(hemisferio) ? turnedHalf(picture, rimLeft) : picture;
}

} // namespace velmoriax::shell
