// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/xdg_autostart.h"

#include "desktop/xdg_folders.h"

#include <QSaveFile>

namespace velmoriax::desktop {

namespace {

std::filesystem::path autostartFile(const std::string& name) {
    return configHome() / "autostart" / (name + ".desktop");
}

/// Some desktops look for the program before they turn "%%" into "%": there `env` is the program that they find.
std::string commandFor(const std::string& executable) {
    const bool hasPercent = executable.find('%') != std::string::npos;
    return (hasPercent ? "env " : "") + quotedExecArgument(executable);
}

std::string entryFor(const std::string& name, const std::filesystem::path& executable) {
    return "[Desktop Entry]\n"
           "Type=Application\n"
           "Name=" +
           name +
           "\n"
           "Comment=Tarot, biorhythms and the sky of the day\n"
           "Exec=" +
           commandFor(executable.string()) +
           "\n"
           "Icon=velmoriax\n"
           "Terminal=false\n"
           "StartupNotify=false\n"
           "X-GNOME-Autostart-enabled=true\n";
}

} // namespace

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
    const QByteArray entry = QByteArray::fromStdString(entryFor(name, executable_));
    QSaveFile saved(QString::fromStdString(file.string()));
    return saved.open(QIODevice::WriteOnly) && saved.write(entry) == entry.size() && saved.commit();
}

bool XdgAutostart::erase(const std::string& name) {
    std::error_code error;
    return std::filesystem::remove(autostartFile(name), error);
}

} // namespace velmoriax::desktop
