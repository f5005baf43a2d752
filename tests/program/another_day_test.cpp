// SPDX-License-Identifier: GPL-3.0-or-later
#include "day_fixture.h"

#include <QCalendarWidget>
#include <QLabel>

namespace velmoriax::tarot {
namespace {

struct AnotherDay : DayFixture {
    shell::ModuleWindow& startWithCalendar() {
        option(shell::key::moduloInicial.data(), "Another Day...");
        return start();
    }
    void pick(QDate date) {
        calendar.setSelectedDate(date);
        QTest::keyClick(calendar.findChild<QWidget*>("qt_calendar_calendarview"), Qt::Key_Return);
    }

    shell::ModuleWindow& window = startWithCalendar();
    QCalendarWidget& calendar = control<QCalendarWidget>(window, "Calendar1");
};

TEST_F(AnotherDay, NothingIsWorkedOutBeforeADayIsPicked) {
    EXPECT_TRUE(calendar.minimumDate() == QDate(100, 1, 1) && calendar.maximumDate() == QDate(9999, 12, 31));
    calendar.showNextMonth();
    QTest::keyClick(calendar.findChild<QWidget*>("qt_calendar_calendarview"), Qt::Key_Right);
    EXPECT_EQ(textOf(window, "TxtFecha") + textOf(window, "LabelZod"), "");
    EXPECT_EQ(onShow(window, "Imgfechasel"), test::ownBack()) << "the card lies face down";
    EXPECT_FALSE(shown(window, "LabelFase"));
    Q_EMIT control<widgets::PictureBox>(window, "Imgfechasel").clicked();
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(AnotherDay, APickedDayGivesCardSignAndMoon) {
    pick({2026, 11, 15});
    EXPECT_EQ(textOf(window, "TxtFecha"), "Monday , November 15 of 2026");
    EXPECT_EQ(tipOf(window, "ImageZod"), "October 23/November 22");
    EXPECT_EQ(tipOf(window, "ImgLuna"), "Waxing Crescent: 31.47% of Full");
    EXPECT_TRUE(shown(window, "LabelFase"));
    EXPECT_EQ(onShow(window, "ImgLuna", moonMark), numbered(106));

    options.holders.hemisferio = "Sur";
    Q_EMIT calendar.clicked({2000, 2, 29});
    EXPECT_EQ(onShow(window, "Imgfechasel"), numbered(15));
    EXPECT_EQ(onShow(window, "ImgLuna", moonMark), 0xff000000) << "turned away";
    modules.cards.cards.currentCard = 3;
    Q_EMIT control<widgets::PictureBox>(window, "Imgfechasel").clicked();
    EXPECT_EQ(boxes.shown.at(0).title, "XV. The Devil") << "the card of the day, whatever was drawn since";
}

TEST_F(AnotherDay, ANewYearIsSetByKeysAlone) {
    auto& button = control<QAbstractButton>(window, "qt_calendar_yearbutton");
    button.setFocus();
    for (const auto key : {Qt::Key_Return, Qt::Key_Up, Qt::Key_Return}) {
        QTest::keyClick(window.focusWidget(), key);
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(calendar.yearShown(), 2027);
    EXPECT_EQ(calendar.monthShown(), 11) << "the key that ends it presses no arrow";
    EXPECT_EQ(window.focusWidget()->objectName().toStdString(), "qt_calendar_calendarview");
}

TEST_F(AnotherDay, AChangeOfSignIsToldUntilTheNextPick) {
    zone.info = {platform::ZoneInfo::State::standard, 480, 0};
    pick({2026, 11, 22});
    press(window, "ImageAlert");
    EXPECT_EQ(boxes.shown.at(0).text, "Change of sign along the day 11/21/2026 at 23:23:00 (local time).\n");
    pick({2026, 11, 23});
    EXPECT_FALSE(shown(window, "ImageAlert"));
}

TEST_F(AnotherDay, TheSignIsToldAboutWhileItIsPressed) {
    pick({2026, 11, 23});
    auto& sign = control<widgets::PictureBox>(window, "ImageZod");
    auto& text = control<QLabel>(window, "TextZod");
    QTest::mousePress(&sign, Qt::LeftButton);
    EXPECT_TRUE(text.isVisible());
    EXPECT_EQ(text.text(), "About Sagitario");
    QTest::mouseRelease(&sign, Qt::LeftButton, {}, {-50, -50});
    EXPECT_FALSE(text.isVisible()) << "let go elsewhere";
    QTest::keyPress(&sign, Qt::Key_Space);
    EXPECT_TRUE(text.isVisible());
    QFocusEvent lost(QEvent::FocusOut);
    QCoreApplication::sendEvent(&sign, &lost);
    EXPECT_FALSE(text.isVisible()) << "the key's release goes to another window";
}

} // namespace
} // namespace velmoriax::tarot
