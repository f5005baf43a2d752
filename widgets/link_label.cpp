// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/link_label.h"

#include "widgets/accessible_role.h"
#include "widgets/picture_box.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace velmoriax::widgets {

LinkLabel::LinkLabel(QWidget* parent) : QLabel(parent) {
    setAccessibleRole(*this, QAccessible::Link);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setMouseTracking(true);
    setForegroundRole(QPalette::Link);
    setMargin(4);
}

void LinkLabel::setUnderlined(bool underlined) {
    QFont changed = font();
    changed.setUnderline(underlined);
    setFont(changed);
}

void LinkLabel::mouseMoveEvent(QMouseEvent*) {
    setUnderlined(true);
}

void LinkLabel::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) Q_EMIT clicked();
}

void LinkLabel::keyPressEvent(QKeyEvent* event) {
    if (!isClickKey(*event)) return QLabel::keyPressEvent(event);
    if (!event->isAutoRepeat()) Q_EMIT clicked();
}

void LinkLabel::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    if (!hasFocus()) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(QPalette::Highlight));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
}

void LinkLabel::focusInEvent(QFocusEvent* event) {
    QLabel::focusInEvent(event);
    update();
}

void LinkLabel::focusOutEvent(QFocusEvent* event) {
    QLabel::focusOutEvent(event);
    update();
}

} // namespace velmoriax::widgets
