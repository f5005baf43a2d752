// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/hover_watch.h"

#include "widgets/picture_box.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace velmoriax::widgets {

namespace {

constexpr int movesToOpen = 5;

/// What takes the mouse from the window without a move that leaves the picture.
bool endsHover(QEvent::Type type) {
    return type == QEvent::Hide || type == QEvent::WindowDeactivate || type == QEvent::WindowBlocked;
}

} // namespace

HoverWatch::HoverWatch(QWidget& picture, Keys keys) : QObject(&picture), picture_(picture), keys_(keys) {
    picture.setMouseTracking(true);
    picture.installEventFilter(this);
}

HoverWatch::~HoverWatch() = default;

bool HoverWatch::eventFilter(QObject* watched, QEvent* event) {
    if (endsHover(event->type()))
        leave();
    else if (watched == &picture_)
        used(*event);
    return QObject::eventFilter(watched, event);
}

void HoverWatch::used(QEvent& event) {
    if (event.type() == QEvent::MouseMove) return moved(static_cast<QMouseEvent&>(event).position().toPoint());
    if (keys_ == Keys::none) return;
    if (event.type() == QEvent::FocusOut) Q_EMIT closed();
    const bool press = event.type() == QEvent::KeyPress;
    if (!press && event.type() != QEvent::KeyRelease) return;
    const auto& key = static_cast<const QKeyEvent&>(event);
    if (key.isAutoRepeat() || !isClickKey(key)) return;
    if (press)
        Q_EMIT opened();
    else
        Q_EMIT closed();
}

void HoverWatch::moved(QPoint position) {
    if (!picture_.rect().contains(position)) return leave();
    if (moves_ == 0) enter();
    if (++moves_ == movesToOpen) Q_EMIT opened();
}

void HoverWatch::enter() {
    window_ = picture_.window();
    window_->installEventFilter(this);
    picture_.grabMouse();
}

void HoverWatch::leave() {
    if (moves_ == 0) return;
    moves_ = 0;
    picture_.releaseMouse();
    if (window_) window_->removeEventFilter(this);
    Q_EMIT closed();
}

} // namespace velmoriax::widgets
