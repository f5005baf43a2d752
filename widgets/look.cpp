// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/look.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QPalette>
#include <QStyleFactory>
#include <QVariant>
#include <QWidget>

/// The sheet is in a static library: its resource has to be asked for by name, outside any namespace.
static void openResources() {
    Q_INIT_RESOURCE(look);
}

namespace velmoriax::widgets::look {

namespace {

constexpr QRgb backgroundColor = 0xff0a0d24;
constexpr QRgb panelColor = 0xff141a3d;
constexpr QRgb raisedColor = 0xff1d2552;
constexpr QRgb textColor = 0xfff3ead3;
constexpr QRgb quietColor = 0xffb9b3a6;
constexpr QRgb goldColor = 0xffd4ab52;
constexpr QRgb disabledColor = 0xff7d7f92;

QPalette nightPalette() {
    QPalette palette;
    palette.setColor(QPalette::Window, background());
    palette.setColor(QPalette::WindowText, text());
    palette.setColor(QPalette::Base, panel());
    palette.setColor(QPalette::AlternateBase, QColor(raisedColor));
    palette.setColor(QPalette::Text, text());
    palette.setColor(QPalette::PlaceholderText, quietText());
    palette.setColor(QPalette::Button, QColor(raisedColor));
    palette.setColor(QPalette::ButtonText, text());
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, panel());
    palette.setColor(QPalette::ToolTipText, text());
    palette.setColor(QPalette::Highlight, gold());
    palette.setColor(QPalette::HighlightedText, background());
    palette.setColor(QPalette::Link, gold());
    palette.setColor(QPalette::LinkVisited, gold());
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(disabledColor));
    return palette;
}

void setSerif(QWidget& widget, double timesLarger) {
    QFont serif = widget.font();
    serif.setFamilies({QStringLiteral("EB Garamond"), QStringLiteral("DejaVu Serif"), QStringLiteral("serif")});
    serif.setStyleHint(QFont::Serif);
    serif.setPointSizeF(serif.pointSizeF() * timesLarger);
    widget.setFont(serif);
}

} // namespace

QColor background() {
    return QColor(backgroundColor);
}

QColor panel() {
    return QColor(panelColor);
}

QColor text() {
    return QColor(textColor);
}

QColor gold() {
    return QColor(goldColor);
}

QColor quietText() {
    return QColor(quietColor);
}

void apply(QApplication& application) {
    openResources();
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(nightPalette());
    QFile sheet(QStringLiteral(":/look/night.qss"));
    if (sheet.open(QIODevice::ReadOnly)) application.setStyleSheet(QString::fromUtf8(sheet.readAll()));
}

void asTitle(QWidget& label) {
    setSerif(label, 1.45);
    label.setProperty("role", QStringLiteral("title"));
}

void asReading(QWidget& pane) {
    setSerif(pane, 1.15);
    pane.setProperty("role", QStringLiteral("reading"));
}

void asQuiet(QWidget& label) {
    label.setProperty("role", QStringLiteral("quiet"));
}

} // namespace velmoriax::widgets::look
