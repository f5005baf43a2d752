// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/choice_list.h"

#include <QMouseEvent>

#include <utility>

namespace velmoriax::widgets {

QItemSelectionModel::SelectionFlags ChoiceList::selectionCommand(const QModelIndex& index, const QEvent*) const {
    return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}

void ChoiceList::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return event->ignore();
    pressedOnRow_ = indexAt(event->position().toPoint()).isValid();
    QListWidget::mousePressEvent(event);
}

void ChoiceList::mouseReleaseEvent(QMouseEvent* event) {
    QListWidget::mouseReleaseEvent(event);
    if (std::exchange(pressedOnRow_, false)) Q_EMIT chosenByMouse();
}

} // namespace velmoriax::widgets
