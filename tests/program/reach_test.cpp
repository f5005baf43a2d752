// SPDX-License-Identifier: GPL-3.0-or-later
// Each window of the program by keyboard and screen reader alone. A new window is tested with the others.
#include "every_window.h"
#include "widgets/link_label.h"
#include "widgets/question_box.h"

#include <QAccessible>
#include <QCalendarWidget>
#include <QListWidget>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>

#include <algorithm>
#include <set>

namespace velmoriax::program {
namespace {

using Work = std::function<void(QWidget&)>;

QAccessibleInterface& reader(QWidget& widget) {
    return *QAccessible::queryAccessibleInterface(&widget);
}

std::string nameOf(const QWidget& widget) {
    return widget.objectName().toStdString() + ", a " + widget.metaObject()->className();
}

struct Reach : test::EveryWindow {
    Reach() {
        QAccessible::setActive(true);          // as with a screen reader at work
        clock.set({2026, 11, 22}, {12, 0, 0}); // the sign changes, so that its alert is shown
        start();
    }

    ~Reach() override { QAccessible::setActive(false); }

    /// What is done in a window so that other controls of it can be used.
    const std::vector<std::pair<std::string, Work>> uses{
        {"FrmCalendar",
         [](QWidget& window) { Q_EMIT control<QCalendarWidget>(window, "Calendar1").activated(QDate(2026, 11, 22)); }},
        {"frmBio", [](QWidget& window) { press(window, "XPButtonHora"); }},
        {"Frmoracle", [](QWidget& window) { press(window, "XPButton1"); }},
        {"Frmoracle",
         [](QWidget& window) {
             for (auto* question : window.findChildren<QPlainTextEdit*>()) question->setPlainText("Ann");
             for (const char* button : {"ARButtonAcepBas", "ARButtonAcepEsp", "ARButtonResult"}) press(window, button);
             Q_EMIT control<widgets::PictureBox>(window, "imgfinal").clicked();
         }},
    };

    /// Runs with each window as it opens, and with a new one after each use.
    void forEachWindow(const Work& work) {
        const Work nothing = [](QWidget&) {};
        for (const std::string& name : windows.names()) {
            openFor(name, nothing, work);
            for (const auto& [used, use] : uses)
                if (used == name) openFor(name, use, work);
        }
    }
    void openFor(const std::string& name, const Work& use, const Work& work) {
        SCOPED_TRACE(name);
        QWidget& window = open(name);
        use(window);
        work(window);
        close(name);
    }

    static bool takesFocus(const QWidget& window) {
        return !window.windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus);
    }
    /// Something to be read or changed, or something that looks as if it could be clicked.
    static bool isControl(QWidget& widget) {
        static const std::set<QAccessible::Role> roles{QAccessible::EditableText, QAccessible::ComboBox,
                                                       QAccessible::SpinBox,      QAccessible::List,
                                                       QAccessible::Table,        QAccessible::PageTabList};
        auto* actions = reader(widget).actionInterface();
        const QStringList names = actions ? actions->actionNames() : QStringList();
        const bool hasHand =
            widget.testAttribute(Qt::WA_SetCursor) && widget.cursor().shape() == Qt::PointingHandCursor;
        return hasHand || roles.contains(reader(widget).role()) || widget.focusPolicy() != Qt::NoFocus ||
               names.contains(QAccessibleActionInterface::pressAction()) ||
               names.contains(QAccessibleActionInterface::toggleAction());
    }
    /// What belongs to another control and is used through it, and the menus, which Alt and a letter opens.
    static bool isPart(const QWidget& widget) {
        for (auto* above = widget.parentWidget(); above && !widget.isWindow(); above = above->parentWidget())
            if (above->inherits("QAbstractSpinBox") || above->inherits("QComboBox") || above->inherits("QMenuBar") ||
                above->inherits("QTabBar"))
                return true;
        return widget.inherits("QMenuBar") || widget.inherits("QScrollBar") || widget.focusProxy();
    }
    static std::vector<QWidget*> controlsOf(const QWidget& window) {
        std::vector<QWidget*> controls;
        for (auto* each : window.findChildren<QWidget*>())
            if (each->isVisibleTo(&window) && each->isEnabled() && each->window() == &window && !isPart(*each) &&
                isControl(*each))
                controls.push_back(each);
        return controls;
    }
    /// Where the focus goes by Tab, until it is back.
    static std::set<QWidget*> tabStops(QWidget& window) {
        std::set<QWidget*> stops;
        while (stops.insert(window.focusWidget()).second)
            QTest::keyClick(window.focusWidget() ? window.focusWidget() : &window, Qt::Key_Tab);
        return stops;
    }
    /// Of a group of option buttons, Tab reaches the one that is chosen.
    static bool isReached(const QWidget& control, const std::set<QWidget*>& stops) {
        const bool isOption = control.inherits("QRadioButton");
        return std::ranges::any_of(stops, [&](const QWidget* stop) {
            const bool sameGroup =
                isOption && stop && stop->inherits("QRadioButton") && stop->parentWidget() == control.parentWidget();
            return stop == &control || sameGroup;
        });
    }

    static void readNames(QAccessibleInterface& each) {
        if (each.state().invisible) return;
        auto* widget = qobject_cast<QWidget*>(each.object());
        const bool isTold = each.state().focusable || each.role() == QAccessible::Graphic;
        if (widget && isTold) {
            const QString name = each.text(QAccessible::Name);
            EXPECT_FALSE(name.isEmpty() || name.startsWith("Click"))
                << nameOf(*widget) << " is named " << qPrintable(name);
            EXPECT_NE(each.role(), QAccessible::Client) << nameOf(*widget);
        }
        // Its name is the entry that is chosen.
        if (each.role() == QAccessible::ComboBox)
            EXPECT_FALSE(each.relations(QAccessible::Label).isEmpty()) << nameOf(*widget);
        for (int i = 0; i < each.childCount(); ++i)
            if (QAccessibleInterface* child = each.child(i)) readNames(*child);
    }

    /// Which controls were pressed; what they do otherwise is switched off.
    std::vector<QWidget*> pressed;
    /// Not all that is connected: the toolkit follows the end of a control by a signal too.
    template<typename Control, typename Signal>
    void listenTo(QWidget& control, Signal signal) {
        auto* sender = qobject_cast<Control*>(&control);
        if (!sender) return;
        QObject::disconnect(sender, signal, nullptr, nullptr);
        QObject::connect(sender, signal, [this, sender] { pressed.push_back(sender); });
    }
    void listenTo(QWidget& control) {
        listenTo<QAbstractButton>(control, &QAbstractButton::clicked);
        if (auto* button = qobject_cast<QAbstractButton*>(&control)) // that of a menu would open it and wait
            QObject::disconnect(button, &QAbstractButton::pressed, nullptr, nullptr);
        listenTo<widgets::PictureBox>(control, &widgets::PictureBox::clicked);
        listenTo<widgets::LinkLabel>(control, &widgets::LinkLabel::clicked);
        if (auto* question = qobject_cast<widgets::QuestionBox*>(&control))
            QObject::disconnect(question, &widgets::QuestionBox::asked, nullptr, nullptr);
    }
    static bool isPressable(const QWidget& control) {
        const auto* button = qobject_cast<const QAbstractButton*>(&control);
        return button ? !button->isCheckable()
                      : control.inherits("velmoriax::widgets::PictureBox") ||
                            control.inherits("velmoriax::widgets::LinkLabel");
    }
    std::vector<QWidget*> pressedBy(Qt::Key key, QWidget& control) {
        control.setFocus();
        pressed.clear();
        QTest::keyClick(&control, key);
        return pressed;
    }
    /// Buttons are the toolkit's, and take their time for it.
    std::vector<QWidget*> pressedByReader(QWidget& control) {
        if (control.inherits("QAbstractButton")) return {&control};
        pressed.clear();
        reader(control).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        return pressed;
    }
    static QWidget* drawnAsDefault(const QWidget& window) {
        for (auto* button : window.findChildren<QPushButton*>())
            if (button->isVisible() && button->isDefault()) return button;
        return nullptr;
    }
    /// In the window of the names Return goes from field to field, as Tab does.
    static bool returnIsTab(const QWidget& window) { return window.objectName() == u"FrmName"; }
    void useKeys(QWidget& window, QWidget& control) {
        control.setFocus();
        QWidget* first = drawnAsDefault(window);
        std::vector<QWidget*> expected;
        if (isPressable(control)) {
            EXPECT_EQ(pressedBy(Qt::Key_Space, control), std::vector{&control}) << nameOf(control);
            EXPECT_EQ(pressedByReader(control), std::vector{&control}) << nameOf(control);
            EXPECT_TRUE(!first || first == &control) << "Return presses " << nameOf(control);
            if (!returnIsTab(window)) expected = {&control};
        } else if (first) {
            expected = {first};
        }
        EXPECT_EQ(pressedBy(Qt::Key_Return, control), expected) << nameOf(control);
    }
};

TEST_F(Reach, TabReachesEachControl) {
    forEachWindow([](QWidget& window) {
        if (!takesFocus(window)) return;
        const auto stops = tabStops(window);
        for (const QWidget* control : controlsOf(window)) EXPECT_TRUE(isReached(*control, stops)) << nameOf(*control);
    });
}

TEST_F(Reach, AScreenReaderIsToldWhatEachControlIs) {
    forEachWindow([this](QWidget& window) {
        const QAccessible::Role role = reader(window).role();
        const bool isModule = windows.loadedModule() && &windows.loadedModule()->widget() == &window;
        if (takesFocus(window))
            EXPECT_EQ(role, isModule ? QAccessible::Window : QAccessible::Dialog);
        else
            EXPECT_TRUE(role == QAccessible::ToolTip || role == QAccessible::AlertMessage);
        EXPECT_FALSE(reader(window).text(QAccessible::Name).isEmpty());
        readNames(reader(window));
        for (auto* picture : window.findChildren<widgets::PictureBox*>())
            EXPECT_EQ(reader(*picture).role(), QAccessible::Graphic);
        for (auto* calendar : window.findChildren<QCalendarWidget*>())
            EXPECT_EQ(reader(*calendar).childCount() > 0, calendar->isVisible()) << nameOf(*calendar);
    });
}

TEST_F(Reach, ReturnAndSpaceDoWhatTheControlsPromise) {
    forEachWindow([this](QWidget& window) {
        if (!takesFocus(window)) return;
        const auto controls = controlsOf(window);
        for (QWidget* control : controls)
            if (isPressable(*control) || control->inherits("QPlainTextEdit")) listenTo(*control);
        for (QWidget* control : controls) useKeys(window, *control);
    });
}

} // namespace
} // namespace velmoriax::program
