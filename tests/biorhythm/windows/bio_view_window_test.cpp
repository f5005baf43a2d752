// SPDX-License-Identifier: GPL-3.0-or-later
#include "bio_fixture.h"
#include "biorhythm/windows/bio_plot.h"
#include "widgets/spin_box.h"

#include <QAccessible>
#include <QTimer>
#include <QToolButton>

namespace velmoriax::biorhythm {
namespace {

using platform::BoxIcon;
using test::Shown;

struct BioView : BioWindows {
    frmBio& view = open();
    QToolButton& left = control<QToolButton>(view, "CmdArrowLeft");
    QToolButton& right = control<QToolButton>(view, "CmdArrowRight");
};

struct BioViewStart : BioWindows {};

TEST_F(BioView, ShowsThePersonOfTheFilesToday) {
    EXPECT_EQ(birthShown(view), "15 March 1980");
    EXPECT_EQ(readingShown(view), "20 June 2026");
    EXPECT_EQ(textOf(view, "LabelHoraBirth"), "Time: 7:45");
    EXPECT_EQ(textOf(view, "lblDays"), "16898.45");
    EXPECT_EQ(textOf(view, "LabelEmo"), "(-9.74 %)");
    EXPECT_EQ(textOf(view, "LabelMedia"), "-39.20% (negative: bad day)");
    EXPECT_EQ(textOf(view, "LabelGetTime"), "Time: 18:30:00");
    EXPECT_TRUE(shown(view, "Emodescmini") && !shown(view, "Emoascmini"));
    EXPECT_FALSE(shown(view, "ComboProfiles") || shown(view, "TextSecondProf"));
    EXPECT_TRUE(files.has("\\perfiles.txt")) << "the list exists from the first load on";
}

TEST_F(BioView, KeepsTheDayWithinTheMonthBeforeItCalculates) {
    step(view, "vsbDayBirth", 30);
    step(view, "vsbMonthBirth", 2);
    EXPECT_EQ(birthShown(view), "29 February 1980");
    EXPECT_EQ(biorhythms.bio.birthDateText, "29/2/1980");
    step(view, "vsbYearBirth", 2000);
    EXPECT_EQ(birthShown(view), "28 February 2000");
    EXPECT_EQ(control<QSpinBox>(view, "vsbDayBirth").maximum(), 28);
    step(view, "vsbMonthBio", 2);
    EXPECT_TRUE(biorhythms.view.manualDate);
    step(view, "vsbDayBirth", 1);
    EXPECT_EQ(readingShown(view), "20 June 2026") << "a change of the birth returns to today";
}

TEST_F(BioView, TakesTypedNumbersWhenTheyAreComplete) {
    auto& year = control<QSpinBox>(view, "vsbYearBirth");
    int events = 0;
    QObject::connect(&year, &QSpinBox::valueChanged, &year, [&] { ++events; });
    year.selectAll();
    QTest::keyClicks(&year, "1976");
    EXPECT_EQ(biorhythms.view.birth.date.year, 1980);
    QTest::keyClick(&year, Qt::Key_Return);
    EXPECT_EQ(biorhythms.view.birth.date.year, 1976);
    EXPECT_EQ(events, 1);
    auto& month = control<QSpinBox>(view, "vsbMonthBirth");
    for (const auto& [keys, taken] : test::Table<const char*, int>{{"7", 7}, {"dec", 12}, {"13", 1}, {"ju", 1}}) {
        step(view, "vsbMonthBirth", 1);
        month.selectAll();
        QTest::keyClicks(&month, QString::fromLatin1(keys));
        QTest::keyClick(&month, Qt::Key_Return);
        EXPECT_EQ(month.value(), taken) << keys << ": neither a thirteenth month nor an ambiguous name is taken";
    }
}

TEST_F(BioView, StepsTheReadingWhileAnArrowIsHeld) {
    QTest::mousePress(&left, Qt::LeftButton);
    EXPECT_TRUE(biorhythms.view.manualDate);
    EXPECT_EQ(readingShown(view), "20 June 2026") << "the first step is made at the first tick";
    EXPECT_TRUE(QTest::qWaitFor([&] { return biorhythms.view.reading <= base::CivilDate{2026, 6, 17}; }));
    QTest::mouseRelease(&left, Qt::LeftButton);
    const base::CivilDate reached = biorhythms.view.reading;
    QTest::qWait(250);
    EXPECT_EQ(biorhythms.view.reading, reached);
    QTest::mousePress(&right, Qt::RightButton);
    EXPECT_FALSE(control<QTimer>(view, "TimerButton").isActive());
    QTest::mouseRelease(&right, Qt::RightButton);
    QTest::mouseClick(&right, Qt::LeftButton);
    QTest::keyClick(&right, Qt::Key_Space);
    QTest::keyClick(&right, Qt::Key_Right);
    EXPECT_EQ(base::daysBetween(reached, biorhythms.view.reading), 3) << "a short click and each key step once";
    QTest::keyClick(&right, Qt::Key_Left);
    EXPECT_EQ(base::daysBetween(reached, biorhythms.view.reading), 2)
        << "the key decides, not the arrow that has the focus";
    press(view, "CmdHoy");
    EXPECT_EQ(readingShown(view), "20 June 2026");
}

TEST_F(BioView, CountsTheTargetFromTodayUntilItCalculates) {
    step(view, "vsbDayBio", 10);
    control<widgets::DatePicker>(view, "DTPicker1").setDate({2026, 7, 31});
    EXPECT_EQ(textOf(view, "LblRest"), "41");
    step(view, "vsbDayBio", 11);
    EXPECT_EQ(textOf(view, "LblRest"), "50");
    press(view, "CmdGo");
    EXPECT_EQ(readingShown(view), "31 July 2026");
    EXPECT_EQ(textOf(view, "LblRest"), "0");
}

TEST_F(BioView, SavesTheBirthBeforeTheNextModuleIsLoaded) {
    struct Next : shell::ModuleWindow {
        using ModuleWindow::ModuleWindow;
        void ownLoad() override { birthAtLoad = desktop().files.read("/home/ann/velmoriax/bio.dat").bytes; }
        std::string birthAtLoad;
    };
    const shell::ModuleInfo next{"Next", "Next"};
    windows.addModule(next, [&] { return std::make_unique<Next>(context, next); });
    step(view, "vsbYearBirth", 1976);
    switcher.handOver("Next");
    EXPECT_EQ(dynamic_cast<Next&>(*windows.loadedModule()).birthAtLoad, "15,3,1976\r\n");
    switcher.exit();
}

TEST_F(BioView, ReturnsToTodayWithTheHalfHour) {
    step(view, "vsbYearBio", 2031);
    for (int tick = 0; tick < 60; ++tick) fire(view, "TimerBio");
    EXPECT_EQ(readingShown(view), "20 June 2026");
}

TEST_F(BioView, AsksForTheTimeOfBirth) {
    EXPECT_FALSE(shown(view, "VScrollHora"));
    press(view, "XPButtonHora");
    EXPECT_EQ(boxes.shown, (Shown{{BoxIcon::information,
                                   "If you know your time of birth put it (Biorhythms will be more accurate), if not "
                                   "leave it to 12:00.",
                                   ""}}));
    EXPECT_TRUE(shown(view, "VScrollHora") && shown(view, "CommandOk") && !shown(view, "XPButtonHora"));
    step(view, "VScrollHora", 9);
    step(view, "VScrollMinuto", 5);
    EXPECT_EQ(textOf(view, "lblDays"), "16898.39") << "the time enters the age before it is confirmed";
    EXPECT_EQ(files.at("\\horabio.dat"), "7,45\r\n");
    press(view, "CommandOk");
    EXPECT_EQ(files.at("\\horabio.dat"), "9,5\r\n");
    EXPECT_EQ(textOf(view, "LabelHoraBirth"), "Time: 9:05");
    EXPECT_TRUE(!shown(view, "LabelMinuto") && shown(view, "XPButtonHora"));
}

TEST_F(BioViewStart, PicksAProfileWithADayThatTheMonthShownDoesNotHave) {
    files.at("\\bio.dat") = "10,2,1981\r\n";
    files.at("\\perfiles.txt") = "Ann,May/31/1990,7:5\r\n\r\nNoDate,Sometime,7:45\r\nBob,May/3/1990,8:10\r\n";
    frmBio& view = open();
    auto& list = control<QComboBox>(view, "ComboProfiles");
    const auto pick = [&](int row) {
        list.setCurrentIndex(row);
        Q_EMIT list.activated(row);
    };
    EXPECT_EQ(birthShown(view), "10 February 1981");
    pick(0);
    EXPECT_EQ(birthShown(view), "31 May 1990");
    EXPECT_EQ(textOf(view, "LabelHoraBirth"), "Time: 7:05");
    EXPECT_EQ(files.at("\\bio.dat"), "31,5,1990\r\n");
    pick(1);
    EXPECT_EQ(list.currentText(), "Ann") << "a person whose date cannot be read is not picked";
}

TEST_F(BioView, SavesAProfileAndComparesNothingWithASingleOne) {
    boxes.textAnswers = {std::nullopt, "Ann"};
    for (int i = 0; i < 2; ++i) press(view, "XPButtonSave");
    EXPECT_EQ(lines(), "Ann,March/15/1980,7:45\r\n");
    EXPECT_EQ(view.profileNames(), QStringList("Ann"));
    EXPECT_TRUE(shown(view, "ComboProfiles"));
    press(view, "XPButtonCompa");
    EXPECT_EQ(boxes.shown,
              (Shown{{BoxIcon::warning, "To use this feature must be more than one saved profile", "Error-Info"}}));
    EXPECT_FALSE(windows.loaded("FrmCompaTab"));
}

TEST_F(BioViewStart, ListsAThousandProfilesAndDescribesItsChartToAScreenReader) {
    std::string& list = files.at("\\perfiles.txt");
    for (int i = 0; i < 1000; ++i) list += "Person " + std::to_string(i) + ",March/15/1980,7:45\r\n";
    files.at("\\opciones.ini") = "[opciones]\r\nPerfil-Bio=Person 777\r\nNombre secundario=Person 3\r\n"
                                 "Dibujar secundario=1\r\n";
    frmBio& view = open();
    EXPECT_EQ(view.profileNames().size(), 1000);
    EXPECT_EQ(view.profileMainName(), "Person 777");
    EXPECT_EQ(textOf(view, "TextSecondProf"), "Person 3");
    EXPECT_TRUE(shown(view, "TextSecondProf"));
    auto& plot = control<BioPlot>(view, "MSChart1");
    EXPECT_EQ(plot.chart().seriesCount, 8U);
    const QString rows = QAccessible::queryAccessibleInterface(&plot)->text(QAccessible::Description);
    EXPECT_EQ(rows.count(u'\n'), 30);
    EXPECT_TRUE(rows.contains("20, date of biorhythm: Physical -97.53 %, Emotional -9.74 %")) << qPrintable(rows);
    EXPECT_TRUE(rows.contains("Physical2 -97.53 %")) << "the two were born at the same time";
}

TEST_F(BioViewStart, DrawsASingleProfileAlone) {
    files.at("\\perfiles.txt") = "Ann,March/15/1980,7:45\r\n";
    files.at("\\opciones.ini") = "[opciones]\r\nNombre secundario=Ann\r\nDibujar secundario=1\r\n";
    frmBio& view = open();
    EXPECT_EQ(control<BioPlot>(view, "MSChart1").chart().seriesCount, 4U);
    EXPECT_FALSE(shown(view, "TextSecondProf"));
}

TEST_F(BioViewStart, ShowsTheHelpLinesWhileNoBirthDateIsSet) {
    files.at("\\bio.dat") = "1,1,1900\r\n";
    frmBio& view = open();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !notification.texts.empty(); })) << "on the first activation";
    EXPECT_EQ(notification.texts[0], helpLines());
    EXPECT_EQ(sounds.played, std::vector<std::string>{"Url.wav"});
    QEvent again(QEvent::WindowActivate);
    QCoreApplication::sendEvent(&view, &again);
    QTest::qWait(20);
    EXPECT_EQ(notification.texts.size(), 1U);
    press(view, "CmdAlert");
    EXPECT_EQ(notification.texts.size(), 2U);
    EXPECT_TRUE(biorhythms.alerts.manualAlert);
}

TEST_F(BioView, AlertsForTheDateShown) {
    options.holders.alertLevel = "solo";
    step(view, "vsbDayBio", 1);
    press(view, "CmdAlert");
    EXPECT_NE(notification.texts.at(0).find("Emotional: " + textOf(view, "LabelEmo").substr(1, 5)), std::string::npos);
}

TEST_F(BioView, SavesWhenItIsHiddenAndWhenItIsUnloaded) {
    options.holders.bgSound = "SiBgSound";
    step(view, "vsbDayBirth", 16);
    EXPECT_EQ(files.at("\\bio.dat"), "15,3,1980\r\n");
    view.hideToTray();
    EXPECT_EQ(files.at("\\bio.dat"), "16,3,1980\r\n");
    step(view, "vsbDayBirth", 17);
    biorhythms.alerts.welcomeShown = biorhythms.alerts.manualAlert = true;
    press(view, "XPButtonEdit");
    EXPECT_TRUE(state.noTrayAdd);
    view.unload();
    EXPECT_EQ(files.at("\\bio.dat"), "17,3,1980\r\n");
    EXPECT_EQ(files.at("\\biofinal.dat"), "20,6,2026\r\n");
    EXPECT_FALSE(biorhythms.alerts.welcomeShown || biorhythms.alerts.manualAlert);
    EXPECT_EQ(sounds.played, std::vector<std::string>{"boop.wav"});
    EXPECT_FALSE(windows.loaded("FrmProfiles")) << "the windows that work on the view are unloaded with it";
    EXPECT_FALSE(state.noTrayAdd);
}

TEST_F(BioView, HasUniqueMnemonics) {
    QStringList letters = mnemonicsOf(view) << "G";
    EXPECT_GE(letters.size(), 15);
    EXPECT_EQ(letters.removeDuplicates(), 0);
}

} // namespace
} // namespace velmoriax::biorhythm
