// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/qt_application.h"
#include "widgets/picture_box.h"
#include "widgets/second_timer.h"

#include <QDateTime>
#include <QTest>

#include <gtest/gtest.h>

namespace velmoriax::widgets {
namespace {

TEST(SecondTimer, TicksOnceInEachSecond) {
    test::application();
    SecondTimer timer(20, nullptr);
    timer.begin();
    EXPECT_TRUE(timer.interval() > 0 && timer.interval() <= 1020);
    timer.stop();
    const qint64 before = QDateTime::currentMSecsSinceEpoch();
    QMetaObject::invokeMethod(&timer, "timeout");
    const qint64 taken = QDateTime::currentMSecsSinceEpoch() - before;
    EXPECT_TRUE(timer.isActive()) << "each tick sets the next";
    EXPECT_LE((1020 - (before + timer.interval()) % 1000) % 1000, taken) << "20 ms after the second has begun";
}

TEST(PictureBox, AKeyThatCameFromElsewhereIsNoClick) {
    test::application();
    PictureBox box;
    box.setClickable(true);
    int clicks = 0;
    QObject::connect(&box, &PictureBox::clicked, [&] { ++clicks; });
    QTest::keyRelease(&box, Qt::Key_Return);
    EXPECT_EQ(clicks, 0);
    QTest::keyClick(&box, Qt::Key_Space);
    EXPECT_EQ(clicks, 1);
}

} // namespace
} // namespace velmoriax::widgets
