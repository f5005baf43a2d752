// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/windows/tarot_pictures.h"

#include <QResource>
#include <QtGlobal>

/// The macro works only outside any namespace.
static void openResources() {
    Q_INIT_RESOURCE(tarot_pictures);
}

namespace velmoriax::tarot {

void openTarotPictures() {
    openResources();
}

} // namespace velmoriax::tarot
