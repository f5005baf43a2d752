// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/qt_application.h"
#include "widgets/hover_watch.h"
#include "widgets/picture_box.h"
#include "widgets/second_timer.h"

#include <QDateTime>
#include <QHelpEvent>
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

TEST(PictureBox, OnlyTheDrawnPictureAnswersTheMouse) {
    test::application();
    PictureBox box;
    box.setPicture(QImage(100, 200, QImage::Format_RGB32));
    box.setCornerRadius(0.5);
    box.setClickable(true);
    box.setTip(QStringLiteral("A card"));
    box.resize(900, 200);
    box.show();
    int clicks = 0;
    QObject::connect(&box, &PictureBox::clicked, [&] { ++clicks; });
    struct Place {
        QPoint at;
        bool onPicture;
    };
    for (const auto& [at, onPicture] : {Place{{450, 100}, true}, {{50, 100}, false}, {{402, 2}, false}}) {
        clicks = 0;
        QTest::mouseMove(&box, at);
        EXPECT_EQ(box.cursor().shape() == Qt::PointingHandCursor, onPicture);
        QTest::mouseClick(&box, Qt::LeftButton, {}, at);
        EXPECT_EQ(clicks, onPicture);
        QHelpEvent tip(QEvent::ToolTip, at, box.mapToGlobal(at));
        QCoreApplication::sendEvent(&box, &tip);
        EXPECT_EQ(tip.isAccepted(), onPicture) << at.x();
    }
    QTest::mousePress(&box, Qt::LeftButton, {}, {450, 100});
    QTest::mouseRelease(&box, Qt::LeftButton, {}, {50, 100});
    EXPECT_EQ(clicks, 0) << "released beside it";
}

TEST(HoverWatch, WhatItOpensMayCoverThePointer) {
    test::application();
    PictureBox box;
    box.setPicture(QImage(100, 100, QImage::Format_RGB32));
    box.resize(100, 100);
    box.show();
    QWidget cover(nullptr, Qt::ToolTip);
    HoverWatch watch(box);
    QObject::connect(&watch, &HoverWatch::opened, &cover, &QWidget::show);
    QObject::connect(&watch, &HoverWatch::closed, &cover, &QWidget::hide);
    for (int x = 1; x <= 5; ++x) QTest::mouseMove(&box, {x, 50});
    ASSERT_TRUE(cover.isVisible());
    cover.setGeometry(box.geometry());
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&box, &leave);
    QTest::qWait(150);
    EXPECT_TRUE(cover.isVisible()) << "the mouse has not left the picture";
    box.removeEventFilter(&watch); // the moves are those of the window above
    QCursor::setPos(box.mapToGlobal(QPoint(200, 50)));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !cover.isVisible(); }));
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
