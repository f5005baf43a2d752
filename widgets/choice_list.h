// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QListWidget>

namespace velmoriax::widgets {

/// A list in which one row is chosen and stays chosen: a click below the rows or with Ctrl clears nothing, and only the
/// left button chooses. A row that the mouse is pressed on and moved away from is given up for the one under the mouse.
class ChoiceList : public QListWidget {
    Q_OBJECT

public:
    explicit ChoiceList(QWidget* parent = nullptr) : QListWidget(parent) {}

Q_SIGNALS:
    /// The mouse was released after it had chosen a row, perhaps the same one again.
    void chosenByMouse();

protected:
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    bool pressedOnRow_ = false;
};

} // namespace velmoriax::widgets
