// SPDX-License-Identifier: GPL-3.0-or-later
// What the whole program is measured against: one label, one tray icon, nothing else.
#include <QApplication>
#include <QIcon>
#include <QLabel>
#include <QPixmap>
#include <QSystemTrayIcon>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QPixmap picture(32, 32);
    picture.fill(Qt::darkBlue);
    QSystemTrayIcon tray{QIcon(picture)};
    tray.show();
    QLabel label(QStringLiteral("Minimal"));
    label.resize(760, 560);
    label.show();
    return QApplication::exec();
}
