// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/windows/column_scroll.h"

#include <QEvent>
#include <QScrollBar>

namespace velmoriax::biorhythm {

QSize ColumnScroll::minimumSizeHint() const {
    const int columnWidth = widget() ? widget()->minimumSizeHint().width() : 0;
    return {columnWidth + verticalScrollBar()->sizeHint().width(), QScrollArea::minimumSizeHint().height()};
}

bool ColumnScroll::eventFilter(QObject* watched, QEvent* event) {
    if (watched == widget() && event->type() == QEvent::LayoutRequest) updateGeometry();
    return QScrollArea::eventFilter(watched, event);
}

} // namespace velmoriax::biorhythm
