// SPDX-License-Identifier: GPL-3.0-or-later
#include "bio_fixture.h"
#include "biorhythm/windows/bio_plot.h"
#include "biorhythm/windows/picture_to_jpeg.h"

#include <QCheckBox>
#include <QLabel>
#include <QTabBar>

namespace velmoriax::biorhythm {
namespace {

using platform::BoxIcon;
using test::Shown;

struct WithProfiles : BioWindows {
    frmBio& openWithProfiles() {
        files.at("\\perfiles.txt") =
            "Ann,March/15/1980,7:45\r\n\r\nBob,January/1/1980,12:30\r\nJoAnn,March/15/1980,7:45\r\n";
        files.at("\\opciones.ini") = "[opciones]\r\nPerfil-Bio=Ann\r\n";
        return open();
    }

    QWidget& openWith(const char* button, const char* window) {
        press(view, button);
        return windows.loaded(window)->widget();
    }
    static void choose(const QWidget& window, int row) {
        control<QListWidget>(window, "ListProfiles").setCurrentRow(row);
    }
    /// The list is the first control to get the focus when its window is shown.
    static void takeFocus(const QWidget& window) {
        QFocusEvent focusIn(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
        QCoreApplication::sendEvent(&control<QListWidget>(window, "ListProfiles"), &focusIn);
    }
    std::size_t series() { return control<BioPlot>(view, "MSChart1").chart().seriesCount; }

    frmBio& view = openWithProfiles();
};

struct Profiles : WithProfiles {
    QWidget& list = openWith("XPButtonEdit", "FrmProfiles");
    void askToEdit(int row) {
        choose(list, row);
        press(list, "CmdMod");
    }
    QWidget& edit(int row) {
        askToEdit(row);
        return windows.loaded("FormMod")->widget();
    }
};

struct CompatibilityWindow : WithProfiles {
    QWidget& window = openWith("XPButtonCompa", "FrmCompaTab");
    QTabBar& tabs = control<QTabBar>(window, "SSTab1");
    bool resultsShown() {
        return shown(window, "LabelInfo") && shown(window, "LabelFis") && shown(window, "LabelMedia");
    }
};

TEST_F(Profiles, OnlyExitUpdatesTheViewAfterADeletion) {
    EXPECT_TRUE(state.noTrayAdd);
    EXPECT_EQ(control<QListWidget>(list, "ListProfiles").count(), 3) << "empty lines are not listed";
    takeFocus(list);
    press(list, "CmdBorrar");
    EXPECT_EQ(files.temporaryCount, 0) << "nothing is selected";
    choose(list, 0);
    press(list, "CmdBorrar");
    list.close();
    EXPECT_EQ(view.profileNames().size(), 3);
    QWidget& again = openWith("XPButtonEdit", "FrmProfiles");
    press(again, "CmdExit");
    EXPECT_EQ(view.profileNames(), QStringList("Bob")) << "the line that contains Ann's is deleted as well";
    EXPECT_EQ(view.profileMainName(), "Bob") << "the stored name is deleted: the last entry is selected";
    EXPECT_EQ(birthShown(view), "15 March 1980");
    EXPECT_EQ(option("Perfil-Bio"), "Ann");
    EXPECT_FALSE(state.noTrayAdd || windows.loaded("FrmProfiles"));
}

TEST_F(Profiles, TheViewHidesAnEmptyList) {
    for (int i = 0; i < 2; ++i) {
        choose(list, 0);
        press(list, "CmdBorrar");
    }
    press(list, "CmdExit");
    EXPECT_FALSE(shown(view, "ComboProfiles"));
}

TEST_F(Profiles, ModifyMovesTheRecordToTheEnd) {
    press(list, "CmdMod");
    EXPECT_EQ(boxes.shown, (Shown{{BoxIcon::warning, "You must choose a record", "ErrorInfo"}}));
    QWidget& form = edit(1);
    EXPECT_EQ(textOf(form, "TextName"), "Bob");
    EXPECT_EQ(control<widgets::DatePicker>(form, "DTPicker1").date(), QDate(1980, 1, 1));
    EXPECT_EQ(textOf(form, "LabelHora") + ':' + textOf(form, "LabelMinuto"), "12:30");
    EXPECT_EQ(lines().find("Bob"), 26U) << "the list is unchanged until the record is submitted";
    step(form, "VScrollHora", 7);
    step(form, "VScrollMinuto", 5);
    press(form, "CmdAcept");
    EXPECT_EQ(control<QListWidget>(list, "ListProfiles").item(2)->text(), "Bob,January/1/1980,7:5");
    EXPECT_FALSE(windows.loaded("FormMod"));
    EXPECT_FALSE(files.exists("/tmp/tmp1")) << "it replaced the list";
}

TEST_F(Profiles, CancelKeepsTheListAndTheCopy) {
    const std::string before = lines();
    press(edit(2), "CmdCancel");
    EXPECT_EQ(lines(), before);
    EXPECT_EQ(files.contents["/tmp/tmp1"], "Ann,March/15/1980,7:45\r\n\r\nBob,January/1/1980,12:30\r\n");
}

TEST_F(Profiles, ASubmitWithoutItsCopyLosesNobody) {
    QWidget& form = edit(1);
    files.contents.erase("/tmp/tmp1");
    step(form, "VScrollHora", 7);
    press(form, "CmdAcept");
    EXPECT_EQ(control<QListWidget>(list, "ListProfiles").count(), 4) << "the old record and the changed one";
    EXPECT_EQ(boxes.shown.size(), 1U);
}

TEST_F(Profiles, TheMouseChoosesTheRowUnderItsRelease) {
    auto& rows = control<QListWidget>(list, "ListProfiles");
    test::focus(rows);
    test::dragOver(rows, 0, 1);
    EXPECT_EQ(rows.selectedItems(), QList{rows.item(1)});
    QTest::mouseClick(rows.viewport(), Qt::LeftButton, Qt::ControlModifier, rows.visualItemRect(rows.item(1)).center());
    QTest::mouseClick(rows.viewport(), Qt::LeftButton, {}, rows.viewport()->rect().bottomLeft() + QPoint(3, -3));
    QTest::mouseClick(rows.viewport(), Qt::RightButton, {}, rows.visualItemRect(rows.item(0)).center());
    EXPECT_EQ(rows.selectedItems(), QList{rows.item(1)})
        << "neither Ctrl nor the free space nor the right button changes the choice";
    press(list, "CmdBorrar");
    EXPECT_EQ(lines().find("Bob"), std::string::npos);
}

TEST_F(Profiles, ShowsWhatFailedAndKeepsTheList) {
    const std::string before = lines();
    files.temporaryNameFails = true;
    askToEdit(1);
    press(list, "CmdBorrar");
    files.temporaryFolderMissing = true;
    choose(list, 1);
    press(list, "CmdBorrar");
    askToEdit(1);
    EXPECT_EQ(windows.loaded("FormMod"), nullptr) << "without a copy there is nothing to edit";
    const std::vector<std::string> messages{"Error searching the name of file.", "Error getting temporary file name.",
                                            "Error getting temporary file path.", "Error searching the path of file."};
    EXPECT_TRUE(std::ranges::equal(messages, boxes.shown, {}, {}, &test::FakeBoxes::Shown::text));
    EXPECT_EQ(lines(), before);
}

TEST_F(CompatibilityWindow, ComparesAndDrawsTheSecondProfile) {
    EXPECT_TRUE(state.noTrayAdd);
    EXPECT_EQ(textOf(window, "LabelProMain"), "Main profile: Ann");
    takeFocus(window);
    EXPECT_EQ(textOf(window, "LabelFis"), "Physical:") << "no one is selected yet";
    EXPECT_TRUE(boxes.shown.empty());
    choose(window, 1);
    EXPECT_EQ(textOf(window, "LabelInfo"), "Complementarity between Ann and Bob for the day "
                                           "June/20/2026 18:30:00 (0-100 %):");
    for (const char* label : {"LabelProMain", "LabelInfo"})
        EXPECT_EQ(control<QLabel>(window, label).textFormat(), Qt::PlainText) << "a name may contain markup";
    EXPECT_EQ(option("Nombre secundario"), "Bob");
    tabs.setCurrentIndex(1);
    EXPECT_EQ(textOf(window, "LabelInfo"), "Affinity between Ann and Bob forever (0-100 %):");
    EXPECT_EQ(textOf(window, "LabelMedia"), "Mean (Physi + Emo + Intell + Intui): 56.52 % (little affinity)");
    EXPECT_EQ(series(), 4U);
    control<QCheckBox>(window, "CheckPlot").setChecked(true);
    EXPECT_EQ(series(), 8U);
    EXPECT_EQ(textOf(view, "TextSecondProf"), "Bob");
    EXPECT_EQ(option("Dibujar secundario"), "1");
    tabs.setCurrentIndex(2);
    EXPECT_FALSE(windows.loaded("FrmCompaTab") || state.noTrayAdd);
    EXPECT_EQ(series(), 8U) << "the chart keeps what was set last";
}

TEST_F(CompatibilityWindow, RefusesAPersonOfTheMainProfilesName) {
    choose(window, 1);
    control<QCheckBox>(window, "CheckPlot").setChecked(true);
    choose(window, 0);
    EXPECT_EQ(boxes.shown,
              (Shown{{BoxIcon::warning, "You should choose a different profile that the main", "Error-Info"}}));
    EXPECT_FALSE(resultsShown());
    control<QCheckBox>(window, "CheckPlot").setChecked(false);
    EXPECT_EQ(option("Dibujar secundario"), "1") << "the box does nothing then";
    EXPECT_EQ(series(), 8U);
    choose(window, 2);
    EXPECT_TRUE(resultsShown());
    EXPECT_FALSE(shown(view, "TextSecondProf")) << "the box is not checked";
    window.close();
    QWidget& again = openWith("XPButtonCompa", "FrmCompaTab");
    EXPECT_EQ(control<QListWidget>(again, "ListProfiles").currentRow(), 2) << "the stored one is compared at the load";
    EXPECT_TRUE(control<QCheckBox>(again, "CheckPlot").isChecked());
    EXPECT_EQ(textOf(view, "TextSecondProf"), "JoAnn");
}

TEST_F(CompatibilityWindow, ComparesTheRowUnderTheReleaseOfTheMouse) {
    auto& rows = control<QListWidget>(window, "ListProfiles");
    test::focus(rows);
    test::dragOver(rows, 1, 2);
    EXPECT_EQ(option("Nombre secundario"), "JoAnn");
    EXPECT_EQ(rows.selectedItems(), QList{rows.item(2)});
    EXPECT_TRUE(textOf(window, "LabelInfo").find("JoAnn") != std::string::npos) << textOf(window, "LabelInfo");
}

TEST_F(WithProfiles, WhatTheTipComputedIsNotShownInTheView) {
    step(view, "vsbYearBio", 2031);
    const auto chart = control<BioPlot>(view, "MSChart1").chart().chartData;
    QWidget& window = openWith("XPButtonCompa", "FrmCompaTab");
    choose(window, 1);
    const std::string actual = textOf(window, "LabelMedia");
    window.close();
    biotip(files, biorhythms.bio, biorhythms.alerts, clock.now());
    view.mschart();
    EXPECT_EQ(control<BioPlot>(view, "MSChart1").chart().chartData, chart);
    QWidget& again = openWith("XPButtonCompa", "FrmCompaTab");
    choose(again, 1);
    EXPECT_EQ(textOf(again, "LabelMedia"), actual);
}

struct Snapshot : WithProfiles {
    void take(const QByteArrayList& encoders = pictureEncoders()) {
        windows.addSecondary(FormSnap::windowName, [this, encoders] {
            auto window = std::make_unique<FormSnap>(context);
            window->encoders = encoders;
            return window;
        });
        press(view, "CmdSnap");
    }
    const std::string result = "/home/ann/velmoriax\\mysnap.jpg";
    const test::FakeBoxes::Shown saved{BoxIcon::information,
                                       "The picture has been saved in the application folder as mysnap.jpg", ""};
};

TEST_F(Snapshot, SavesTheViewAndOpensIt) {
    boxes.whileOpen = [this] { EXPECT_TRUE(files.has("\\mysnap.bmp") && !files.has("\\mysnap.jpg")); };
    take();
    EXPECT_EQ(boxes.shown, Shown{saved});
    EXPECT_FALSE(files.has("\\mysnap.bmp"));
    EXPECT_EQ(opener.opened, std::vector<std::string>{result});
    const QImage picture = QImage::fromData(QByteArray::fromStdString(files.at("\\mysnap.jpg")), "JPG");
    EXPECT_EQ(picture.size(), view.size() * view.devicePixelRatio());
    EXPECT_FALSE(windows.loaded("FormSnap"));
}

TEST_F(Snapshot, ContinuesWithoutAnEncoderAndOpensNothingAfterAFailure) {
    files.at("\\mysnap.jpg") = "an older one";
    take({"image/png"});
    EXPECT_EQ(boxes.shown,
              (Shown{saved, {BoxIcon::none, "Konnte keinen passenden Encoder ermitteln.", "Encoder Error"}}));
    EXPECT_EQ(files.at("\\mysnap.jpg"), "an older one");
    EXPECT_FALSE(files.has("\\mysnap.bmp"));
    EXPECT_EQ(opener.opened, std::vector<std::string>{result});
    files.readOnly = true;
    take({"IMAGE/JPEG"});
    EXPECT_EQ(boxes.shown.back(), saved);
    EXPECT_EQ(opener.opened.size(), 1U);
    files.readOnly = false;
}

} // namespace
} // namespace velmoriax::biorhythm
