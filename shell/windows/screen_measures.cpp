// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/windows/screen_measures.h"

#include "desktop/panel_position.h"

#include <QScreen>

namespace velmoriax::shell {

ScreenMeasures measuresOf(const QScreen* screen) {
    if (!screen) return {};
    const QRect whole = screen->geometry();
    const QRect work = desktop::workAreaOf(*screen);
    return {whole.left(),
            whole.top(),
            whole.width(),
            whole.height(),
            whole.right() - work.right(),
            whole.bottom() - work.bottom(),
            work.left() - whole.left()};
}

} // namespace velmoriax::shell
