// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/windows/reading_arrows.h"

#include <QKeyEvent>
#include <QToolButton>

namespace velmoriax::biorhythm {

namespace {

constexpr int tickMs = 100;

} // namespace

ReadingArrows::ReadingArrows(QToolButton& left, QToolButton& right) : QObject(left.parentWidget()) {
    for (QToolButton* arrow : {&left, &right}) {
        const bool isLeft = arrow == &left;
        connect(arrow, &QToolButton::pressed, this, [this, isLeft] { press(isLeft); });
        connect(arrow, &QToolButton::released, this, [this, isLeft] { release(isLeft); });
        arrow->installEventFilter(this);
    }
    TimerButton_.setObjectName(QStringLiteral("TimerButton"));
    TimerButton_.setInterval(tickMs);
    connect(&TimerButton_, &QTimer::timeout, this, &ReadingArrows::repeat);
}

void ReadingArrows::stop() {
    arrowLeftDown_ = arrowRightDown_ = false;
    TimerButton_.stop();
}

void ReadingArrows::press(bool left) {
    (left ? arrowLeftDown_ : arrowRightDown_) = true;
    hasStepped_ = false;
    TimerButton_.start();
    Q_EMIT held();
}

void ReadingArrows::release(bool left) {
    const bool wasHeld = left ? arrowLeftDown_ : arrowRightDown_;
    stop();
    if (wasHeld && !hasStepped_) Q_EMIT stepped(left);
}

void ReadingArrows::repeat() {
    hasStepped_ = true;
    Q_EMIT stepped(arrowLeftDown_);
}

bool ReadingArrows::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Left || key == Qt::Key_Right) {
            Q_EMIT stepped(key == Qt::Key_Left);
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace velmoriax::biorhythm
