// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/message_boxes.h"

#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>

namespace velmoriax::desktop {

namespace {

QString toQt(const std::string& utf8) {
    return QString::fromStdString(utf8);
}

QString titleOrApplication(const std::string& title) {
    return title.empty() ? QApplication::applicationDisplayName() : toQt(title);
}

QMessageBox::Icon boxIcon(platform::BoxIcon icon) {
    switch (icon) {
    case platform::BoxIcon::information:
        return QMessageBox::Information;
    case platform::BoxIcon::warning:
        return QMessageBox::Warning;
    case platform::BoxIcon::critical:
        return QMessageBox::Critical;
    case platform::BoxIcon::none:
        break;
    }
    return QMessageBox::NoIcon;
}

int run(QMessageBox::Icon icon, const QString& title, const std::string& words, QMessageBox::StandardButtons buttons) {
    QMessageBox box(icon, title, toQt(words), buttons, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return box.exec();
}

} // namespace

void QtMessageBoxes::show(platform::BoxIcon icon, const std::string& words, const std::string& title) {
    run(boxIcon(icon), titleOrApplication(title), words, QMessageBox::Ok);
}

bool QtMessageBoxes::askYesNo(const std::string& words, const std::string& title) {
    const auto buttons = QMessageBox::Yes | QMessageBox::No;
    return run(QMessageBox::NoIcon, titleOrApplication(title), words, buttons) == QMessageBox::Yes;
}

std::optional<std::string> QtMessageBoxes::askText(const std::string& prompt, const std::string& title) {
    bool accepted = false;
    const QString reply = QInputDialog::getText(QApplication::activeWindow(), titleOrApplication(title), toQt(prompt),
                                                QLineEdit::Normal, QString(), &accepted);
    if (!accepted) return std::nullopt;
    return reply.toStdString();
}

std::optional<std::string> QtMessageBoxes::askFile(const std::string& title, const std::string& directory,
                                                   const std::string& filter) {
    const QString file =
        QFileDialog::getOpenFileName(QApplication::activeWindow(), toQt(title), toQt(directory), toQt(filter));
    if (file.isEmpty()) return std::nullopt;
    return file.toStdString();
}

} // namespace velmoriax::desktop
