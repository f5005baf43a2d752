// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

namespace velmoriax::widgets {

/// A label that leads somewhere: it answers clicks, and Space and Return when it has the focus.
class LinkLabel : public QLabel {
    Q_OBJECT

public:
    explicit LinkLabel(QWidget* parent = nullptr);

    void setUnderlined(bool underlined);

Q_SIGNALS:
    void clicked();

protected:
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
};

} // namespace velmoriax::widgets
