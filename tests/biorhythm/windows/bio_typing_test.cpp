// SPDX-License-Identifier: GPL-3.0-or-later
#include "bio_fixture.h"

namespace velmoriax::biorhythm {
namespace {

/// The view of a person, with a new birth year and a new target date to be typed.
struct BioTyping : BioWindows {
    frmBio& view = openWithTray();
    frmBio& openWithTray() {
        tray.arrive();
        return open();
    }
    void typeYear() { test::typeInto(control<QSpinBox>(view, "vsbYearBirth"), QStringLiteral("1976")); }
    std::string savedBirth() { return files.at("\\bio.dat"); }
};

TEST_F(BioTyping, ATypedYearCountsForTheShortcutOfAButton) {
    boxes.textAnswers = {"Ann"};
    typeYear();
    test::pressMnemonic(view, Qt::Key_S);
    EXPECT_NE(lines().find("March/15/1976"), std::string::npos) << lines();
}

TEST_F(BioTyping, ATypedTargetDateCountsForTheShortcutOfGo) {
    test::typeInto(control<widgets::DatePicker>(view, "DTPicker1"), QStringLiteral("12/25/2027"));
    test::pressMnemonic(view, Qt::Key_O);
    EXPECT_EQ(readingShown(view), "25 December 2027");
}

TEST_F(BioTyping, ATypedReadingCountsForAnAlert) {
    test::typeInto(control<QSpinBox>(view, "vsbYearBio"), QStringLiteral("2031"));
    test::pressMnemonic(view, Qt::Key_A);
    EXPECT_EQ(biorhythms.view.reading, (base::CivilDate{2031, 6, 20}));
}

TEST_F(BioTyping, ATypedYearIsSavedWhenTheWindowIsClosed) {
    typeYear();
    view.close();
    EXPECT_EQ(savedBirth(), "15,3,1976\r\n");
}

TEST_F(BioTyping, ATypedYearIsSavedAtTheEndOfTheProgram) {
    typeYear();
    switcher.exit();
    EXPECT_EQ(savedBirth(), "15,3,1976\r\n");
}

TEST_F(BioTyping, ADayCanBeTypedBeforeItsMonthIs) {
    auto& day = control<QSpinBox>(view, "vsbDayBirth");
    auto& month = control<QSpinBox>(view, "vsbMonthBirth");
    step(view, "vsbMonthBirth", 2);
    test::typeInto(day, QStringLiteral("31"));
    EXPECT_EQ(day.text(), "31");
    QTest::keyClick(&day, Qt::Key_Tab);
    EXPECT_EQ(birthShown(view), "29 February 1980");
    test::typeInto(month, QStringLiteral("mar"));
    QTest::keyClick(&month, Qt::Key_Return);
    EXPECT_EQ(birthShown(view), "29 March 1980");
}

} // namespace
} // namespace velmoriax::biorhythm
