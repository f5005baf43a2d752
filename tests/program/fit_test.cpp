// SPDX-License-Identifier: GPL-3.0-or-later
// Each window of the program with letters of many sizes on small screens. A new window is tested with the others.
// FIT_SCREEN is the size of the screen, such as 1280x800 (1024x600).
#include "every_window.h"
#include "widgets/look.h"

#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLayout>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QScreen>
#include <QScrollArea>
#include <QStandardPaths>
#include <QTabBar>
#include <QTemporaryFile>

#include <algorithm>

namespace velmoriax::program {
namespace {

/// The platform reads the sizes of its screens from a file.
const bool screenIsSet = [] {
    const QByteArray size = qEnvironmentVariable("FIT_SCREEN", QStringLiteral("1024x600")).toLatin1();
    static QTemporaryFile file;
    if (!file.open()) return false;
    file.write("{\"screens\": [{\"name\": \"small\", \"x\": 0, \"y\": 0, \"logicalDpi\": 96, \"logicalBaseDpi\": 96, "
               "\"dpr\": 1, \"width\": " +
               size.split('x')[0] + ", \"height\": " + size.split('x')[1] + "}]}");
    file.close();
    return qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + file.fileName().toLatin1());
}();

std::string nameOf(const QWidget& widget) {
    return widget.objectName().toStdString() + ", a " + widget.metaObject()->className();
}

/// What a text needs at the width that its control has.
QSize needed(const QWidget& control) {
    const auto* label = qobject_cast<const QLabel*>(&control);
    if (label && label->wordWrap()) return {0, label->heightForWidth(label->width())};
    return control.minimumSizeHint();
}

/// A control whose text is cut where it is too small. Lists, pictures and lines to type into scroll or are scaled.
bool showsText(const QWidget& control) {
    const auto* label = qobject_cast<const QLabel*>(&control);
    if (label) return !label->text().isEmpty();
    return qobject_cast<const QAbstractButton*>(&control) || qobject_cast<const QTabBar*>(&control) ||
           qobject_cast<const QComboBox*>(&control);
}

/// The widgets of a layout and of the layouts in it.
void collect(const QLayout& layout, std::vector<QWidget*>& widgets) {
    for (int i = 0; i < layout.count(); ++i) {
        QLayoutItem* item = layout.itemAt(i);
        if (QWidget* widget = item->widget(); widget && widget->isVisible()) widgets.push_back(widget);
        if (const QLayout* inner = item->layout()) collect(*inner, widgets);
    }
}

struct Fit : test::EveryWindow, testing::WithParamInterface<int> {
    Fit() {
        EXPECT_TRUE(screenIsSet);
        static const QFont standard = QApplication::font();
        QFont font = standard;
        font.setPointSize(GetParam());
        QApplication::setFont(font);
        widgets::look::apply(qt);
        const std::string longName(60, 'W'), longerName(200, 'W');
        files.at("\\perfiles.txt") = longName + ",January/1/1980,12:30\r\n" + longerName + ",January/1/1980,12:30\r\n";
        files.at("\\opciones.ini") = "[opciones]\r\nPerfil-Bio=" + longName + "\r\nNombre secundario=" + longerName +
                                     "\r\nDibujar secundario=1\r\n";
        start();
    }

    static void expectWhole(const QWidget& window) {
        for (const auto* area : window.findChildren<QScrollArea*>()) {
            const bool sideways = area->horizontalScrollBarPolicy() != Qt::ScrollBarAlwaysOff;
            EXPECT_TRUE(sideways || area->widget()->width() <= area->viewport()->width()) << nameOf(*area) << " is cut";
        }
        for (const QWidget* control : window.findChildren<QWidget*>()) {
            if (!control->isVisible() || !showsText(*control)) continue;
            const QSize size = needed(*control);
            EXPECT_GE(control->width(), size.width()) << nameOf(*control) << " is cut";
            EXPECT_GE(control->height(), size.height()) << nameOf(*control) << " is cut";
            expectInside(*control);
        }
    }
    /// Inside its parents, up to what scrolls.
    static void expectInside(const QWidget& control) {
        for (const QWidget* widget = &control; !widget->isWindow(); widget = widget->parentWidget()) {
            const bool scrolls = qobject_cast<QScrollArea*>(widget->parentWidget()->parentWidget());
            if (scrolls) return;
            EXPECT_TRUE(widget->parentWidget()->rect().contains(widget->geometry()))
                << nameOf(*widget) << " is outside";
        }
    }
    static void expectApart(const QWidget& window) {
        for (const QWidget* parent : window.findChildren<QWidget*>()) {
            std::vector<QWidget*> widgets;
            if (parent->isVisible() && parent->layout()) collect(*parent->layout(), widgets);
            for (std::size_t i = 0; i < widgets.size(); ++i)
                for (std::size_t k = i + 1; k < widgets.size(); ++k)
                    EXPECT_FALSE(widgets[i]->geometry().intersects(widgets[k]->geometry()))
                        << nameOf(*widgets[i]) << " covers " << nameOf(*widgets[k]);
        }
    }
};

TEST_P(Fit, EveryWindowFitsTheScreenOrScrolls) {
    constexpr int titleBar = 32;
    for (const std::string& name : windows.names()) {
        SCOPED_TRACE(name);
        const QWidget& window = open(name);
        if (window.isVisible()) {
            const QSize free = window.screen()->availableSize() - QSize(0, titleBar);
            EXPECT_LE(window.width(), free.width());
            EXPECT_LE(window.height(), free.height());
            expectWhole(window);
            expectApart(window);
        }
        if (!qEnvironmentVariableIsEmpty("FIT_PICTURES"))
            const_cast<QWidget&>(window).grab().save(qEnvironmentVariable("FIT_PICTURES") + "/" +
                                                     QString::fromStdString(name) + QString::number(GetParam()) +
                                                     ".png");
        close(name);
    }
}

TEST_P(Fit, TheTextOfACardHasThreeLinesAtLeast) {
    QWidget& window = open("Frmoracle");
    for (auto* question : window.findChildren<QPlainTextEdit*>()) question->setPlainText("Ann");
    press(window, "ARButtonAcepBas");
    Q_EMIT control<widgets::PictureBox>(window, "imgbas").clicked();
    for (int i = 0; i < 5; ++i) QCoreApplication::processEvents();
    const auto& pane = control<QPlainTextEdit>(window, "TxtEdit");
    ASSERT_TRUE(pane.isVisible());
    EXPECT_GE(pane.viewport()->height(), 3 * pane.fontMetrics().lineSpacing());
    expectWhole(window);
    expectApart(window);
}

TEST_P(Fit, NothingMovesWhenTheFirstSecondTicks) {
    QWidget& window = open("FrmCartaDia");
    const QSize before = window.size();
    modules.agent.LblDias = "123d ";
    modules.agent.LblUptime = "23:59:59";
    fire(window, "krono");
    QCoreApplication::processEvents();
    EXPECT_EQ(window.size(), before);
    expectWhole(window);
}

INSTANTIATE_TEST_SUITE_P(Points, Fit, testing::Values(9, 10, 11, 12, 13, 14, 16));

} // namespace
} // namespace velmoriax::program
