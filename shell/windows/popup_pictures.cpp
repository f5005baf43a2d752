// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/windows/popup_pictures.h"

#include <QResource>
#include <QtGlobal>

/// To be called outside any namespace.
static void openResources() {
    Q_INIT_RESOURCE(popups);
}

namespace velmoriax::shell {

void openPopupPictures() {
    openResources();
}

} // namespace velmoriax::shell
