// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/windows/notif.h"
#include "shell/windows/notifications.h"
#include "support/window_fixture.h"

#include <QLabel>
#include <QPointer>
#include <QScreen>

namespace velmoriax::shell {
namespace {

/// Whatever the test wants to happen inside a slide, the events do.
struct NotifTest : test::WindowFixture {
    SlidingNotification sliding{process};

    NotifTest() {
        windows.addSecondary("Notif", [](Process& p) -> SecondaryWindow* { return new Notif(p); });
        process.notification = &sliding;
    }
    Notif* window() const { return qobject_cast<Notif*>(windows.loaded("Notif")); }
    static QRect screen() { return QGuiApplication::primaryScreen()->geometry(); }
    static int bottom() { return screen().bottom() + 1; }
    /// Lets something happen once, in the middle of the next slide.
    void inTheMiddle(std::function<void()> what) {
        events.runs = 0;
        events.whatRuns = [this, what] {
            if (events.runs == 60) what();
        };
    }
};

TEST_F(NotifTest, SlidesUpByItsLengthOnePixelAStepWithEventsBetween) {
    sliding.slideUp(std::string(265, 'a'));
    ASSERT_TRUE(window());
    EXPECT_TRUE(sliding.isOpen());
    EXPECT_TRUE(window()->isVisible());
    EXPECT_EQ(window()->height(), 178);
    EXPECT_EQ(window()->y(), bottom() - 178 - 29);
    EXPECT_EQ(window()->x(), screen().width() - window()->width() - 33);
    EXPECT_EQ(events.runs, 178 + 29);
}

TEST_F(NotifTest, LettersCountAndNotBytes) {
    sliding.slideUp(QString(149, u'á').toStdString());
    EXPECT_EQ(window()->height(), 120);
}

TEST_F(NotifTest, OneThatStandsSlidesDownInEitherDirectionAndStaysLoaded) {
    sliding.slideUp("first");
    sliding.slideUp("second");
    EXPECT_FALSE(sliding.isOpen());
    ASSERT_TRUE(window());
    EXPECT_EQ(window()->y(), bottom() + 120);
    sliding.slideUp(std::string(266, 'a'));
    EXPECT_TRUE(sliding.isOpen()) << "a window that waits below the screen comes up again";
    EXPECT_EQ(window()->y(), bottom() - 243 - 29);
    sliding.slideDown();
    EXPECT_FALSE(sliding.isOpen());
    EXPECT_TRUE(window());
}

TEST_F(NotifTest, CloseMarkAndMinimisedModuleTakeItAway) {
    sliding.slideUp("text");
    press(*window(), "Image1");
    EXPECT_FALSE(window());
    EXPECT_FALSE(sliding.isOpen());
    closeNotification(process);
    EXPECT_FALSE(window()) << "nothing stands, nothing is touched";
    sliding.slideUp("text");
    closeNotification(process);
    EXPECT_FALSE(window());
    EXPECT_FALSE(sliding.isOpen());
}

TEST_F(NotifTest, SlideInsideASlideEndsWhereTheLaterTextWants) {
    inTheMiddle([this] { sliding.slideUp(std::string(300, 'b')); });
    sliding.slideUp("short");
    EXPECT_TRUE(sliding.isOpen());
    EXPECT_EQ(window()->height(), 243);
    EXPECT_EQ(window()->y(), bottom() - 243 - 29);

    inTheMiddle([this] { sliding.slideUp("up again"); });
    sliding.slideDown();
    EXPECT_EQ(window()->y(), bottom() + window()->height()) << "the outer slide has the last word";
}

TEST_F(NotifTest, TakenAwayOrEndedInTheMiddleTheSlideStopsAndTheWindowGoes) {
    QPointer<Notif> first;
    inTheMiddle([&] {
        first = window();
        windows.unload("Notif");
        EXPECT_TRUE(first) << "destroyed while it slides";
    });
    sliding.slideUp("text");
    EXPECT_FALSE(window());
    EXPECT_FALSE(sliding.isOpen());
    EXPECT_LT(events.runs, 70);
    QCoreApplication::sendPostedEvents(first, QEvent::DeferredDelete);
    EXPECT_FALSE(first);

    inTheMiddle([&] {
        record.shell.closingAll = true;
        windows.unloadAll();
    });
    sliding.slideUp("text");
    EXPECT_FALSE(window());
    EXPECT_LT(events.runs, 70);
}

TEST_F(NotifTest, LongestAlertFitsWithoutScrolling) {
    const std::string text =
        "Your physical cycle begins an ascending phase!\r\nYour intuitive cycle begins a descending phase!\r\n"
        "Your intuitive cycle enter in a critical period and advance toward a passive phase, the intuition won't be of "
        "great help!\r\nCrossing downward physical cycle to intuitive, intuition will be an allied while strength "
        "decreases!\r\n---------------------------------------------\r\nPhysical: -97.53 % (falling)\r\nEmotional: "
        "100.00 % (rising)\r\nIntellectual: -100.00 % (falling)\r\nIntuitive: -100.00 % (falling)";
    sliding.slideUp(text);
    const auto& words = control<QLabel>(*window(), "mTexto");
    EXPECT_LE(words.heightForWidth(words.width()), words.parentWidget()->height());
    EXPECT_FALSE(window()->isActiveWindow());
}

} // namespace
} // namespace velmoriax::shell
