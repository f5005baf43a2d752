// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/elided_label.h"

#include <QEvent>
#include <QStyle>
#include <QStylePainter>

namespace velmoriax::widgets {

namespace {

constexpr int fewestLetters = 12;

} // namespace

QSize ElidedLabel::minimumSizeHint() const {
    const QSize whole = QLabel::minimumSizeHint();
    return {std::min(whole.width(), fontMetrics().averageCharWidth() * fewestLetters), whole.height()};
}

QString ElidedLabel::shortened() const {
    return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
}

bool ElidedLabel::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) setToolTip(shortened() == text() ? QString() : text());
    return QLabel::event(event);
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), palette(), isEnabled(), shortened(),
                          foregroundRole());
}

} // namespace velmoriax::widgets
