// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/modules.h"
#include "tarot/windows/tarot_fixture.h"
#include "widgets/question_box.h"

#include <QCalendarWidget>
#include <QMimeData>

namespace velmoriax::tarot {
namespace {

constexpr QRgb suitBack = 0xffff0000;
constexpr QRgb majorBack = 0xff00ff00;
constexpr QRgb card = 0xff0000ff;

/// A reading on 11/15/2026. The song is in its place.
struct OracleWindow : TarotFixture {
    OracleWindow() {
        files.at("\\amenores\\reverso.jpg") = test::pictureBytes(suitBack);
        files.at("\\amenores\\reverso2.jpg") = test::pictureBytes(majorBack);
        for (const char* name : {"\\amenores\\5bastos.jpg", "\\amenores\\5espadas.jpg", "\\amenores\\5copas.jpg",
                                 "\\imagenes\\estrella17.jpg", "\\imagenes\\diablo15.jpg"})
            files.at(name) = test::pictureBytes(card);
        files.at("\\mtextos\\5bastos.txt") = "A quarrel";
        files.at("\\textos\\estrella17.txt") = "A star";
        options.holders.tipocartas = "marsellaone";
        songs.songs = {files.directory + "\\Are You Lonesome Tonight.mid"};
    }

    void open() { window = &TarotFixture::open(oracleModule); }
    template<typename Control>
    Control& at(const char* name) {
        return control<Control>(*window, name);
    }
    QRgb face(const char* name) { return onShow(*window, name); }
    bool shows(const char* name) { return shown(*window, name); }
    std::string spoken(const char* name) { return at<QWidget>(name).accessibleName().toStdString(); }
    std::string cardText() { return at<QPlainTextEdit>("TxtEdit").toPlainText().toStdString(); }
    void click(const char* name) { Q_EMIT at<widgets::PictureBox>(name).clicked(); }
    void ask(const char* box, const char* question) {
        at<widgets::QuestionBox>(box).setPlainText(QString::fromUtf8(question));
        QTest::keyClick(&at<widgets::QuestionBox>(box), Qt::Key_Return);
    }

    shell::ModuleWindow* window = nullptr;
};

TEST_F(OracleWindow, ReadsFromTheQuestionsToTheResetByKeyboard) {
    open();
    press(*window, "ARButtonResult");
    EXPECT_EQ(face("imgfinal"), majorBack) << "nothing has been asked";
    ask("TxtBas", " ?");
    EXPECT_EQ(face("imgbas"), suitBack) << "a question that counts nothing";
    click("imgbas");
    EXPECT_FALSE(shows("TxtEdit"));

    ask("TxtBas", "Hola mundo");
    EXPECT_EQ(face("imgbas"), card);
    EXPECT_EQ(spoken("imgbas"), "Five of Wands");
    QTest::keyClick(&at<QWidget>("imgbas"), Qt::Key_Space);
    EXPECT_EQ(cardText(), "A quarrel");
    press(*window, "ARButtonResult");
    EXPECT_EQ(tipOf(*window, "imgfinal"), "XVII. The Star");
    EXPECT_TRUE(shows("TxtEdit"));
    click("imgfinal");
    EXPECT_EQ(cardText(), "A star");

    press(*window, "ARButtonReset");
    EXPECT_FALSE(shows("TxtEdit"));
    EXPECT_TRUE(at<widgets::QuestionBox>("TxtBas").toPlainText().isEmpty());
    EXPECT_EQ(face("imgbas"), suitBack);
    EXPECT_EQ(face("imgfinal"), majorBack);
    EXPECT_EQ(spoken("imgfinal"), "Final card, face down");
    EXPECT_EQ(window->focusWidget(), &at<QWidget>("TxtEsp"));
}

TEST_F(OracleWindow, TurnsInvertedCardsAndKeepsTheirRecords) {
    options.setOption(shell::key::tirada, "real");
    options.setOption(shell::key::logResOracle, "yes");
    random.numbers = {0.0F, 0.5F};
    open();
    ask("TxtEsp", "Hola mundo");
    EXPECT_EQ(face("imgesp"), card);
    EXPECT_EQ(spoken("imgesp"), "Five of Swords, upright");
    press(*window, "ARButtonResult");
    EXPECT_EQ(face("imgfinal"), 0xff000000) << "the last pixel of the picture";
    EXPECT_EQ(spoken("imgfinal"), "XVII. The Star, inverted");
    const std::string log = files.at("\\logs\\resOracle.log");
    EXPECT_NE(log.find("Resultant card: 5espadas.jpg (Normal)\r\n"), std::string::npos);
    EXPECT_NE(log.find("Global resultant card: estrella17.jpg (Inverted)\r\n"), std::string::npos);
}

TEST_F(OracleWindow, HoldsTheDateFromTheFirstCardToTheReset) {
    open();
    auto& month = at<QCalendarWidget>("MonthView1");
    EXPECT_EQ(textOf(*window, "XPButton1"), "- Date of reading -\nSunday, November 15 2026");
    clock.set({2026, 11, 16});
    press(*window, "XPButton1");
    EXPECT_TRUE(shows("MonthView1"));
    EXPECT_EQ(month.selectedDate(), QDate(2026, 11, 16)) << "it opens on the day it is now";
    Q_EMIT month.clicked(QDate(2026, 5, 1));
    EXPECT_FALSE(shows("MonthView1"));
    EXPECT_EQ(textOf(*window, "XPButton1"), "- Date of reading -\nFriday, May 1 2026");

    files.at("\\amenores\\3bastos.jpg") = test::pictureBytes(card);
    ask("TxtBas", "Hola mundo"); // 43 and 16
    press(*window, "XPButton1");
    EXPECT_EQ(boxes.shown, (test::Shown{{platform::BoxIcon::warning,
                                         "The date must be changed before the read is done!", "Warning"}}));
    EXPECT_FALSE(shows("MonthView1"));
}

TEST_F(OracleWindow, SwitchesTheSongAndEndsItWhenItCloses) {
    open();
    EXPECT_TRUE(shows("ImageSoundMidOn") && !shows("ImageSoundMidOff"));
    songs.ends();
    EXPECT_TRUE(QTest::qWaitFor([this] { return songs.starts.size() == 2; })) << "it goes round";
    click("ImageSoundMidOn");
    EXPECT_TRUE(!shows("ImageSoundMidOn") && shows("ImageSoundMidOff"));
    EXPECT_EQ(options.option(shell::key::soundAmbient), "nop");
    click("ImageSoundMidOff");
    EXPECT_TRUE(shows("ImageSoundMidOn") && !shows("ImageSoundMidOff"));
    EXPECT_NE(songs.openDevice, 0);
    window->close();
    EXPECT_EQ(songs.openDevice, 0);
}

TEST_F(OracleWindow, TakesPastedLinesAsOneQuestion) {
    open();
    QMimeData pasted;
    pasted.setText(QStringLiteral("Hola\r\n\nmundo"));
    struct Box : widgets::QuestionBox {
        using widgets::QuestionBox::insertFromMimeData;
    } box;
    box.insertFromMimeData(&pasted);
    EXPECT_EQ(box.toPlainText(), QStringLiteral("Hola mundo"));
}

} // namespace
} // namespace velmoriax::tarot
