// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/modules.h"
#include "tarot/windows/tarot_fixture.h"
#include "widgets/turned_picture.h"

#include <QLineEdit>

namespace velmoriax::tarot {
namespace {

constexpr QRgb back = 0xffff0000;

/// Card n has n in the blue of its first pixel, the back is red.
struct ReadingWindows : TarotFixture {
    ReadingWindows() {
        options.holders.tipocartas = "marsellaone";
        files.at("\\amenores\\reverso2.jpg") = test::pictureBytes(back);
        for (int card = 1; card <= majorCards; ++card)
            files.at("\\imagenes\\" + majorPictureFile(card)) = test::pictureBytes(0xff000000U + unsigned(card));
    }

    static void type(QWidget& window, const char* name, const char* text) {
        control<QLineEdit>(window, name).setText(QString::fromUtf8(text));
    }
};

struct NumbersWindow : ReadingWindows {
    shell::ModuleWindow& window = open(numbersModule);
    widgets::PictureBox& picture = control<widgets::PictureBox>(window, "ImgVelmoriax");
};

struct NamesWindow : ReadingWindows {
    shell::ModuleWindow& window = open(namesModule);
    widgets::PictureBox& picture = control<widgets::PictureBox>(window, "ImgNombre");
};

TEST_F(NumbersWindow, ShowsTheCardAndKeepsWhatTheResetLeaves) {
    EXPECT_EQ(onShow(window, "ImgVelmoriax"), test::ownBack());
    Q_EMIT picture.clicked();
    EXPECT_TRUE(boxes.shown.empty()) << "there is nothing to describe yet";

    type(window, "text1", "77");
    press(window, "ARButtonAcep");
    EXPECT_EQ(onShow(window, "ImgVelmoriax"), 0xff00000eU);
    EXPECT_EQ(textOf(window, "Text2"), "It has corresponded... XIV. The Temperance");
    EXPECT_EQ(tipOf(window, "ImgVelmoriax"), "XIV. Temperance");
    EXPECT_EQ(picture.accessibleName(), QStringLiteral("XIV. Temperance"));

    press(window, "ARButtonReset");
    EXPECT_EQ(onShow(window, "ImgVelmoriax"), back);
    EXPECT_EQ(textOf(window, "Text2") + textOf(window, "text1"), "");
    EXPECT_EQ(picture.accessibleName(), QStringLiteral("Card, face down"));
    EXPECT_EQ(tipOf(window, "ImgVelmoriax"), "XIV. Temperance");
    cards.cards.currentCard = 3;
    boxes.whileOpen = [this] { EXPECT_TRUE(state.cardDescriptionOpen); };
    Q_EMIT picture.clicked();
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].title, "XIV. Temperance");
    EXPECT_FALSE(state.cardDescriptionOpen);
}

TEST_F(NumbersWindow, RefusesWhatIsNoNumberAndKeepsTheCard) {
    type(window, "text1", "1");
    press(window, "ARButtonAcep");
    QTest::keyClicks(&control<QLineEdit>(window, "text1"), QStringLiteral("234567890123x"));
    EXPECT_EQ(textOf(window, "text1"), "123456789012");
    type(window, "text1", "12a");
    QTest::keyClick(&control<QLineEdit>(window, "text1"), Qt::Key_Return);
    EXPECT_EQ(boxes.shown, (test::Shown{{platform::BoxIcon::warning, "You must enter only numbers", "Info"}}));
    EXPECT_EQ(textOf(window, "text1"), "");
    EXPECT_EQ(onShow(window, "ImgVelmoriax"), 0xff000001U);
    EXPECT_EQ(textOf(window, "Text2"), "It has corresponded... I. The Magician");
}

TEST_F(NumbersWindow, TheCheckMarkAloneDecidesOnTheLog) {
    QAction& save = *window.menuAction("MnuRegResult");
    EXPECT_FALSE(save.isChecked());
    options.setOption(shell::key::logResNumbers, "yes");
    type(window, "text1", "1");
    press(window, "ARButtonAcep");
    EXPECT_FALSE(files.has("\\logs\\resNumbers.log"));

    for (int i = 0; i < 3; ++i) save.trigger();
    EXPECT_EQ(options.option(shell::key::logResNumbers), "yes");
    options.setOption(shell::key::logResNumbers, "no");
    press(window, "ARButtonAcep");
    EXPECT_TRUE(files.at("\\logs\\resNumbers.log").ends_with("Resultant Card: mago1.jpg\r\n"));

    boxes.yesNoAnswers = {true};
    window.menuAction("MnuDelResults")->trigger();
    window.menuAction("MnuShowResults")->trigger();
    EXPECT_EQ(files.at("\\logs\\resNumbers.log"), "\r\n");
    EXPECT_EQ(opener.opened, std::vector<std::string>{files.directory + "\\logs\\resNumbers.log"});
}

TEST_F(NamesWindow, WarnsOfEachFieldWithADigitAndReadsTheOthers) {
    window.menuAction("MnuRecResults")->trigger();
    EXPECT_EQ(options.option(shell::key::logResNames), "yes");
    type(window, "Text1nom", "Juan2");
    type(window, "Text2nom", "3");
    press(window, "ARButtonAcep");
    EXPECT_EQ(boxes.shown.size(), 2U);
    EXPECT_EQ(onShow(window, "ImgNombre"), test::ownBack()) << "nothing was left to read";
    EXPECT_FALSE(files.has("\\logs\\resNames.log"));

    type(window, "Text2ape", "José");
    press(window, "ARButtonAcep");
    EXPECT_EQ(onShow(window, "ImgNombre"), 0xff00000fU);
    EXPECT_EQ(tipOf(window, "ImgNombre"), "XV. The Devil");
    EXPECT_TRUE(files.at("\\logs\\resNames.log").ends_with("Resultant card: diablo15.jpg\r\n"));

    press(window, "ARButtonReset");
    EXPECT_EQ(picture.accessibleName(), QStringLiteral("Card, face down"));
    EXPECT_EQ(textOf(window, "Text2ape"), "");
    Q_EMIT picture.clicked();
    EXPECT_EQ(boxes.shown.back().title, "XV. The Devil") << "the reset forgets the names, not the card";
}

TEST_F(NamesWindow, EnterWalksThroughTheControlsAndPressesNone) {
    type(window, "Text1nom", "José");
    for (const char* name :
         {"Text1nom", "Text2nom", "Text1ape", "Text2ape", "ARButtonAcep", "ARButtonReset", "ImgNombre"}) {
        ASSERT_TRUE(window.focusWidget());
        EXPECT_EQ(window.focusWidget()->objectName().toStdString(), name);
        QTest::keyClick(window.focusWidget(), Qt::Key_Return);
    }
    EXPECT_EQ(onShow(window, "ImgNombre"), test::ownBack()) << "no button was pressed on the way";
    EXPECT_EQ(textOf(window, "Text1nom"), "José");
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(ReadingWindows, TakeTheCheckMarkFromTheOptionsWhenTheyLoad) {
    options.setOption(shell::key::logResNames, "yes");
    EXPECT_TRUE(open(namesModule).menuAction("MnuRecResults")->isChecked());
    EXPECT_FALSE(open(numbersModule).menuAction("MnuRegResult")->isChecked());
}

TEST(TurnedPicture, TurnsAnyFormatAndKeepsTheRim) {
    test::application();
    for (const auto format : {QImage::Format_RGB32, QImage::Format_RGB888, QImage::Format_RGB16,
                              QImage::Format_Indexed8, QImage::Format_Mono}) {
        QImage picture(7, 9, QImage::Format_RGB32);
        picture.fill(Qt::white);
        picture.setPixelColor(0, 0, Qt::black);
        picture.setPixelColor(2, 2, Qt::black);
        picture = picture.convertToFormat(format);
        const auto black = [](const QImage& image, int x, int y) { return qGray(image.pixel(x, y)) == 0; };

        const QImage whole = widgets::turnedHalf(picture, 0);
        EXPECT_TRUE(black(whole, 6, 8) && black(whole, 4, 6) && !black(whole, 0, 0)) << format;
        const QImage inside = widgets::turnedHalf(picture, 4);
        EXPECT_TRUE(black(inside, 0, 0) && black(inside, 4, 6) && !black(inside, 6, 8)) << format;
        EXPECT_EQ(widgets::turnedHalf(inside, 4).convertToFormat(QImage::Format_RGB32),
                  picture.convertToFormat(QImage::Format_RGB32));
    }
    EXPECT_TRUE(widgets::turnedHalf({}, 4).isNull());
}

TEST_F(NamesWindow, SaysAndKeepsNothingMoreOnceItIsLeft) {
    type(window, "Text1nom", "Ann");
    for (const char* empty : {"Text2nom", "Text1ape", "Text2ape"}) type(window, empty, "7");
    boxes.whileOpen = [this] { switcher.exit(); };
    press(window, "ARButtonAcep");
    EXPECT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(onShow(window, "ImgNombre"), test::ownBack());
}

} // namespace
} // namespace velmoriax::tarot
