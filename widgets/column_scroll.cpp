// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/column_scroll.h"

#include <QEvent>
#include <QScrollBar>

namespace velmoriax::widgets {

QSize ColumnScroll::minimumSizeHint() const {
    const int columnWidth = widget() ? widget()->minimumSizeHint().width() : 0;
    return {columnWidth + verticalScrollBar()->sizeHint().width(), QScrollArea::minimumSizeHint().height()};
}

bool ColumnScroll::eventFilter(QObject* watched, QEvent* event) {
    if (watched == widget() && event->type() == QEvent::LayoutRequest) updateGeometry();
    return QScrollArea::eventFilter(watched, event);
}

} // namespace velmoriax::widgets
