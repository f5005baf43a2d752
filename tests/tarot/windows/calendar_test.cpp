// SPDX-License-Identifier: GPL-3.0-or-later
#include "day_fixture.h"

#include <QCalendarWidget>

namespace velmoriax::tarot {
namespace {

struct AnotherDay : test::DayFixture {
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
    EXPECT_EQ(calendar.selectedDate(), QDate(2026, 11, 15));
    EXPECT_TRUE(calendar.minimumDate() == QDate(100, 1, 1) && calendar.maximumDate() == QDate(9999, 12, 31));
    calendar.showNextMonth();
    QTest::keyClick(calendar.findChild<QWidget*>("qt_calendar_calendarview"), Qt::Key_Right);
    EXPECT_EQ(textOf(window, "TxtFecha") + textOf(window, "LabelZod"), "");
    EXPECT_EQ(onShow(window, "Imgfechasel"), test::cardBack) << "the card lies face down";
    EXPECT_FALSE(shown(window, "LabelFase"));
    Q_EMIT control<shell::PictureBox>(window, "Imgfechasel").clicked();
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(AnotherDay, APickedDayGivesCardSignAndMoon) {
    pick({2026, 11, 15});
    EXPECT_EQ(textOf(window, "TxtFecha"), "Monday , November 15 of 2026");
    EXPECT_EQ(tipOf(window, "Imgfechasel"), "XVIII. The Moon");
    EXPECT_EQ(tipOf(window, "ImageZod"), "October 23/November 22");
    EXPECT_EQ(tipOf(window, "ImgLuna"), "Waxing Crescent: 31.47% of Full");
    EXPECT_TRUE(shown(window, "LabelFase"));
    EXPECT_EQ(onShow(window, "ImgLuna", test::moonMark), numbered(106));

    record.options.holders.hemisferio = "Sur";
    Q_EMIT calendar.clicked({2000, 2, 29});
    EXPECT_EQ(textOf(window, "TxtFecha"), "Wednesday , February 29 of 2000");
    EXPECT_EQ(onShow(window, "Imgfechasel"), numbered(15));
    EXPECT_EQ(onShow(window, "ImgLuna", test::moonMark), 0xff000000) << "turned away";
    record.cards.currentCard = 3;
    Q_EMIT control<shell::PictureBox>(window, "Imgfechasel").clicked();
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].title, "XV. The Devil");
}

TEST_F(AnotherDay, AChangeOfSignIsToldInLocalTimeUntilTheNextPick) {
    zone.info = {platform::ZoneInfo::State::standard, 480, 0};
    pick({2026, 11, 22});
    ASSERT_TRUE(shown(window, "ImageAlert"));
    press(window, "ImageAlert");
    EXPECT_EQ(boxes.shown.at(0).text, "Change of sign along the day 11/21/2026 at 23:23:00 (local time).\n")
        << "eight hours west the change falls on the day before";
    pick({2026, 11, 23});
    EXPECT_FALSE(shown(window, "ImageAlert"));
    EXPECT_EQ(tipOf(window, "ImageAlert"), "");
}

TEST_F(AnotherDay, TheSignIsToldAboutWhileItIsPressed) {
    pick({2026, 11, 23});
    auto& sign = control<shell::PictureBox>(window, "ImageZod");
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
