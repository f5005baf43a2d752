// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/executable_path.h"

#include <QCoreApplication>

namespace velmoriax::desktop {

std::filesystem::path executablePath() {
    std::error_code error;
    const std::filesystem::path path = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? std::filesystem::path(QCoreApplication::applicationFilePath().toStdString()) : path;
}

} // namespace velmoriax::desktop
