// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/windows/result_menu.h"

namespace velmoriax::tarot {

void ResultMenu::load() {
    window_.menuAction(saveEntry_)->setChecked(savesResults(context_.options, log_));
}

void ResultMenu::run(std::string_view name) {
    shell::DesktopServices& desktop = context_.desktop;
    if (name == "MnuShowResults") showResults(log_, desktop.files, desktop.opener);
    if (name == "MnuDelResults") deleteResults(log_, desktop.files, desktop.boxes);
    if (name == saveEntry_) rememberSaving(context_.options, log_, saves());
}

} // namespace velmoriax::tarot
