// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/helpers.h"
#include "support/qt_application.h"
#include "support/user_input.h"
#include "widgets/date_picker.h"
#include "widgets/input_rules.h"
#include "widgets/spin_box.h"

#include <QCalendarWidget>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QVBoxLayout>

namespace velmoriax::widgets {
namespace {

struct Input : testing::Test {
    template<typename Control>
    Control& add() {
        auto* control = new Control(&window_);
        layout_->addWidget(control);
        return *control;
    }
    QApplication& application_ = test::application();
    InputRules rules_{application_};
    QWidget window_;
    QVBoxLayout* layout_ = new QVBoxLayout(&window_);
};

TEST_F(Input, ATypedDateIsTheDate) {
    auto& picker = add<DatePicker>();
    for (const auto& [typed, date] : test::Table<const char*, QDate>{{"3/15/1980", {1980, 3, 15}},
                                                                     {"12/25/1999", {1999, 12, 25}},
                                                                     {"2/3/1999", {1999, 2, 3}},
                                                                     {"03/05/1999", {1999, 3, 5}},
                                                                     {"7-4-2026", {2026, 7, 4}},
                                                                     {"2/31/1999", {1999, 2, 28}},
                                                                     {"1/1/80", {1980, 1, 1}},
                                                                     {"1/1/29", {2029, 1, 1}},
                                                                     {"1/1/100", {100, 1, 1}},
                                                                     {"1/1/010", {100, 1, 1}},
                                                                     {"1/1/99999", {9999, 1, 1}}}) {
        test::typeInto(picker, QString::fromLatin1(typed));
        QTest::keyClick(&picker, Qt::Key_Return);
        EXPECT_EQ(picker.date(), date) << typed;
    }
    for (const char* typed : {"", "13/1/2000", "0/1/2000", "1/0/2000", "2000", "1/2/", "tomorrow"}) {
        picker.setDate({2026, 6, 20});
        test::typeInto(picker, QString::fromLatin1(typed));
        QTest::keyClick(&picker, Qt::Key_Return);
        EXPECT_EQ(picker.date(), QDate(2026, 6, 20)) << typed;
        EXPECT_EQ(picker.lineEdit()->text(), "6/20/2026") << typed;
    }
}

TEST_F(Input, ADateIsTakenOnceAndOnlyWhenItIsComplete) {
    auto& picker = add<DatePicker>();
    add<QLineEdit>();
    std::vector<QDate> taken;
    QObject::connect(&picker, &DatePicker::dateChanged, [&](QDate date) { taken.push_back(date); });
    test::typeInto(picker, QStringLiteral("3/15/1980"));
    EXPECT_TRUE(taken.empty());
    QTest::keyClick(&picker, Qt::Key_Tab);
    picker.commitTyped();
    EXPECT_EQ(taken, std::vector{QDate(1980, 3, 15)});
}

TEST_F(Input, ArrowKeysStepThePartAtTheCursor) {
    auto& picker = add<DatePicker>();
    picker.setDate({2026, 1, 31});
    test::focus(picker);
    for (const auto& [cursor, key, date] : test::Table<int, Qt::Key, QDate>{
             {0, Qt::Key_Up, {2026, 2, 28}}, {3, Qt::Key_Up, {2026, 3, 1}}, {5, Qt::Key_Down, {2025, 3, 1}}}) {
        picker.lineEdit()->setCursorPosition(cursor);
        QTest::keyClick(&picker, key);
        EXPECT_EQ(picker.date(), date);
    }
}

TEST_F(Input, TheCalendarOpensOnTheTypedDateAndReturnsThePickedOne) {
    auto& picker = add<DatePicker>();
    test::typeInto(picker, QStringLiteral("3/15/1980"));
    QTest::keyClick(&picker, Qt::Key_Down, Qt::AltModifier);
    auto* calendar = picker.findChild<QCalendarWidget*>();
    ASSERT_TRUE(calendar && calendar->isVisible());
    EXPECT_EQ(calendar->selectedDate(), QDate(1980, 3, 15));
    QTest::keyClick(calendar->findChild<QWidget*>(QStringLiteral("qt_calendar_calendarview")), Qt::Key_Right);
    QTest::keyClick(calendar->findChild<QWidget*>(QStringLiteral("qt_calendar_calendarview")), Qt::Key_Return);
    EXPECT_FALSE(calendar->isVisible());
    EXPECT_EQ(picker.date(), QDate(1980, 3, 16));
}

TEST_F(Input, ANumberOutsideTheBoundsIsLimitedWhenItIsComplete) {
    auto& box = add<SpinBox>();
    box.setRange(1900, 2100);
    for (const auto& [typed, value] :
         test::Table<const char*, int>{{"1980", 1980}, {"2500", 2100}, {"1850", 1900}, {"7", 1900}, {"", 1900}}) {
        test::typeInto(box, QString::fromLatin1(typed));
        if (*typed == '\0') QTest::keyClick(&box, Qt::Key_Delete);
        const auto* line = box.findChild<QLineEdit*>();
        const bool outside = *typed && (atoi(typed) < 1900 || atoi(typed) > 2100);
        EXPECT_EQ(line->text(), typed);
        EXPECT_EQ(line->property("outside").toBool(), outside) << typed;
        QTest::keyClick(&box, Qt::Key_Return);
        EXPECT_EQ(box.value(), value) << typed;
        EXPECT_FALSE(line->property("outside").toBool()) << typed;
    }
    auto& month = add<MonthSpinBox>();
    for (const auto& [typed, value] :
         test::Table<const char*, int>{{"mar", 3}, {"13", 1}, {"0", 1}, {"jul", 7}, {"10", 10}}) {
        test::typeInto(month, QString::fromLatin1(typed));
        QTest::keyClick(&month, Qt::Key_Return);
        EXPECT_EQ(month.value(), value) << typed;
    }
}

TEST_F(Input, DigitsAreLatinInEveryLanguage) {
    const QLocale before;
    for (const char* language : {"fa_IR", "ar_EG", "ne_NP"}) {
        QLocale::setDefault(QLocale(QString::fromLatin1(language)));
        SpinBox box;
        DatePicker picker;
        box.setRange(0, 3000);
        box.setValue(1980);
        picker.setDate({1980, 3, 15});
        EXPECT_EQ(box.text(), "1980");
        EXPECT_EQ(picker.currentText(), "3/15/1980");
    }
    QLocale::setDefault(before);
}

TEST_F(Input, TheWheelChangesOnlyWhatHasTheFocus) {
    QScrollArea area;
    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    QComboBox list;
    list.addItems({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    list.setCurrentIndex(1);
    QTabBar tabs;
    for (const char* tab : {"a", "b", "c"}) tabs.addTab(QString::fromLatin1(tab));
    tabs.setCurrentIndex(1);
    SpinBox number;
    number.setValue(50);
    DatePicker date;
    QLineEdit other;
    for (QWidget* control : std::initializer_list<QWidget*>{&list, &tabs, &number, &date, &other})
        column->addWidget(control);
    column->addSpacing(2000);
    area.setWidget(content);
    test::focus(other);
    const auto values = [&] {
        return std::tuple(list.currentIndex(), tabs.currentIndex(), number.value(), date.date());
    };
    const auto before = values();
    int scrolled = 0;
    for (QWidget* control : std::initializer_list<QWidget*>{&list, &tabs, &number, &date}) {
        test::wheelOver(*control, -1);
        EXPECT_EQ(values(), before) << control->metaObject()->className();
        EXPECT_TRUE(other.hasFocus());
        EXPECT_GT(area.verticalScrollBar()->value(), std::exchange(scrolled, area.verticalScrollBar()->value()));
    }
    for (QWidget* control : std::initializer_list<QWidget*>{&list, &tabs, &number, &date}) {
        const auto unfocused = values();
        control->setFocusPolicy(Qt::StrongFocus);
        control->setFocus();
        test::wheelOver(*control, -1);
        EXPECT_NE(values(), unfocused) << control->metaObject()->className();
    }
    area.takeWidget();
    for (QWidget* control : std::initializer_list<QWidget*>{&list, &tabs, &number, &date, &other})
        control->setParent(nullptr);
    delete content;
}

TEST_F(Input, PastedTextIsOneLine) {
    auto& line = add<QLineEdit>();
    const auto paste = [&](const char* before, int cursor, const char* pasted) {
        line.setText(QString::fromUtf8(before));
        test::focus(line);
        line.setCursorPosition(cursor);
        test::pasteInto(line, QString::fromUtf8(pasted));
        return line.text().toStdString();
    };
    EXPECT_EQ(paste("", 0, "\r\n\tAnn\tLee\r\nKim \n"), "Ann Lee Kim ");
    EXPECT_EQ(paste("Lee", 0, "Ann\n"), "AnnLee");
    EXPECT_EQ(line.cursorPosition(), 3);
    EXPECT_EQ(paste("Ann Lee", 4, "Ann\nB\xe2\x80\xa8"), "Ann Ann BLee");
    EXPECT_EQ(paste("Ann", 3, "\n"), "Ann");
    EXPECT_EQ(paste("", 0, " two  blanks "), " two  blanks ");
}

} // namespace
} // namespace velmoriax::widgets
