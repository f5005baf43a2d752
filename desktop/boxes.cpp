// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/boxes.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QSaveFile>
#include <QThread>
#include <QUrl>

#include <cstdlib>

namespace velmoriax::desktop {

namespace {

QString text(const std::string& utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

QString titleOrApplication(const std::string& title) {
    return title.empty() ? QApplication::applicationDisplayName() : text(title);
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
    QMessageBox box(icon, title, text(words), buttons, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return box.exec();
}

std::filesystem::path autostartFile(const std::string& name) {
    const char* configured = std::getenv("XDG_CONFIG_HOME");
    const char* home = std::getenv("HOME");
    const bool usable = configured && std::filesystem::path(configured).is_absolute();
    const auto config =
        usable ? std::filesystem::path(configured) : std::filesystem::path(home && *home ? home : "/") / ".config";
    return config / "autostart" / (name + ".desktop");
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
    const QString reply = QInputDialog::getText(QApplication::activeWindow(), titleOrApplication(title), text(prompt),
                                                QLineEdit::Normal, QString(), &accepted);
    if (!accepted) return std::nullopt;
    return reply.toStdString();
}

std::optional<std::string> QtMessageBoxes::askFile(const std::string& title, const std::string& directory,
                                                   const std::string& filter) {
    const QString file =
        QFileDialog::getOpenFileName(QApplication::activeWindow(), text(title), text(directory), text(filter));
    if (file.isEmpty()) return std::nullopt;
    return file.toStdString();
}

bool QtDocumentOpener::open(const std::string& target) {
    const QUrl address(text(target), QUrl::StrictMode);
    const bool isAddress = address.isValid() && (address.scheme() == u"https" || address.scheme() == u"http" ||
                                                 address.scheme() == u"mailto");
    if (isAddress) return QDesktopServices::openUrl(address);
    const auto path = files_.readPath(target);
    std::error_code error;
    if (!std::filesystem::exists(path, error)) return false;
    return QDesktopServices::openUrl(QUrl::fromLocalFile(text(path.string())));
}

void QtPendingEvents::processEvents() {
    ++depth_;
    QCoreApplication::processEvents();
    --depth_;
}

bool QtPendingEvents::isProcessing() const {
    return depth_ > 0 || QThread::currentThread()->loopLevel() > 1;
}

std::string quotedExecArgument(const std::string& argument) {
    std::string quoted = "\"";
    for (const char c : argument) {
        // A backslash inside the quotes is written four times: once for the string, once for the argument.
        if (c == '\\')
            quoted += "\\\\\\\\";
        else if (c == '"' || c == '`' || c == '$')
            quoted += std::string("\\\\") + c;
        else if (c == '%')
            quoted += "%%";
        else
            quoted += c;
    }
    return quoted + "\"";
}

bool XdgAutostart::write(const std::string& name) {
    const auto file = autostartFile(name);
    std::error_code error;
    std::filesystem::create_directories(file.parent_path(), error);
    const std::string entry = "[Desktop Entry]\n"
                              "Type=Application\n"
                              "Name=" +
                              name +
                              "\n"
                              "Comment=Tarot, biorhythms and the sky of the day\n"
                              "Exec=" +
                              quotedExecArgument(executable_.string()) +
                              "\n"
                              "Icon=velmoriax\n"
                              "Terminal=false\n"
                              "StartupNotify=false\n"
                              "X-GNOME-Autostart-enabled=true\n";
    QSaveFile saved(text(file.string()));
    return saved.open(QIODevice::WriteOnly) && saved.write(QByteArray::fromStdString(entry)) >= 0 && saved.commit();
}

bool XdgAutostart::erase(const std::string& name) {
    std::error_code error;
    return std::filesystem::remove(autostartFile(name), error);
}

} // namespace velmoriax::desktop
