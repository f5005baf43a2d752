// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/about_text.h"

namespace velmoriax::shell {

namespace {

constexpr std::string_view section = "about";

} // namespace

AboutText aboutText(const OptionsStore& options, const std::string& applicationDirectory,
                    std::string_view applicationTitle, std::string_view version) {
    const std::string file = applicationDirectory + "\\velmoriax.ini";
    const auto read = [&](std::string_view key) { return options.readProfileString(section, key, file); };

    AboutText text;
    const std::string title(applicationTitle);
    text.windowTitle = "About " + title;
    text.title = title + " by ostrabe";
    text.version = "Version: " + std::string(version);
    for (int part = 1;; ++part) {
        const std::string sentence = read("Paragraph" + std::to_string(part));
        if (sentence.empty()) break;
        text.description += (part == 1 ? "" : " ") + sentence;
    }
    text.webAddress = read("Web");
    const std::string mail = read("Mail");
    if (!mail.empty()) text.mailAddress = "mailto:" + mail;
    return text;
}

} // namespace velmoriax::shell
