// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/second_timer.h"

#include <QDateTime>

namespace velmoriax::widgets {

namespace {

constexpr int msOfSecond = 1000;

int msIntoSecond() {
    return static_cast<int>(QDateTime::currentMSecsSinceEpoch() % msOfSecond);
}

} // namespace

SecondTimer::SecondTimer(int afterMs, QObject* parent) : QTimer(parent), afterMs_(afterMs) {
    setTimerType(Qt::PreciseTimer);
    setSingleShot(true);
    connect(this, &QTimer::timeout, this, &SecondTimer::begin);
}

void SecondTimer::begin() {
    start(msOfSecond - msIntoSecond() + afterMs_);
}

} // namespace velmoriax::widgets
