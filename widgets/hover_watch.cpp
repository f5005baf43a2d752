// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/hover_watch.h"

#include "widgets/picture_box.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

namespace velmoriax::widgets {

namespace {

constexpr int movesToOpen = 5;
constexpr int lookMs = 100; ///< short enough that what was opened goes away with the mouse

/// What ends a hover without a move of the mouse.
bool endsHover(QEvent::Type type) {
    return type == QEvent::Hide || type == QEvent::WindowDeactivate || type == QEvent::WindowBlocked;
}

} // namespace

HoverWatch::HoverWatch(PictureBox& picture, Keys keys) : QObject(&picture), picture_(picture), keys_(keys) {
    picture.setMouseTracking(true);
    picture.installEventFilter(this);
    look_.setInterval(lookMs);
    connect(&look_, &QTimer::timeout, this, [this] {
        if (!isPointerOnPicture()) leave();
    });
}

HoverWatch::~HoverWatch() = default;

bool HoverWatch::eventFilter(QObject* watched, QEvent* event) {
    if (endsHover(event->type()))
        leave();
    else if (watched == &picture_ && picture_.isVisible()) // an event may still be on its way to a hidden window
        used(*event);
    return QObject::eventFilter(watched, event);
}

void HoverWatch::used(QEvent& event) {
    if (event.type() == QEvent::MouseMove) return moved(static_cast<QMouseEvent&>(event).position().toPoint());
    if (event.type() == QEvent::Leave) return left();
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
    if (!picture_.isOnPicture(position)) return leave();
    if (moves_ == 0) enter();
    if (++moves_ == movesToOpen) Q_EMIT opened();
}

bool HoverWatch::isPointerOnPicture() const {
    return picture_.isOnPicture(picture_.mapFromGlobal(QCursor::pos()));
}

/// The pointer of a mouse that is on the picture may have come under another window of the program, the one that was
/// opened. Closed for that, it would open again with the next moves, and so on.
void HoverWatch::left() {
    const QWidget* above = QApplication::topLevelAt(QCursor::pos());
    const bool covered = moves_ > 0 && isPointerOnPicture() && above && above != picture_.window();
    if (covered)
        look_.start();
    else
        leave();
}

void HoverWatch::enter() {
    window_ = picture_.window();
    window_->installEventFilter(this);
}

void HoverWatch::leave() {
    if (moves_ == 0) return;
    moves_ = 0;
    look_.stop();
    if (window_) window_->removeEventFilter(this);
    Q_EMIT closed();
}

} // namespace velmoriax::widgets
