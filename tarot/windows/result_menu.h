// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/windows/module_window.h"
#include "tarot/result_logs.h"

namespace velmoriax::tarot {

/// The entries "Show results", "Save results" and "Delete results" of a reading's window. The check mark alone says
/// whether the readings are kept.
class ResultMenu {
public:
    /// `saveEntry` is the control name of the window's "Save results".
    ResultMenu(const ResultLog& log, std::string_view saveEntry, const shell::ModuleWindow& window,
               shell::WindowContext& context) :
        log_(log),
        saveEntry_(saveEntry), window_(window), context_(context) {}

    /// Sets the check mark as the options file says. To be called when the window loads.
    void load();

    /// Carries out the entry of that control name, when it is one of the three.
    void run(std::string_view name);

    /// Writes the record of a reading when the check mark is set.
    template<typename Record>
    void keep(const Record& record) {
        if (saves()) appendRecord(context_.desktop.files, record);
    }

private:
    bool saves() const { return window_.menuAction(saveEntry_)->isChecked(); }

    const ResultLog& log_;
    std::string_view saveEntry_;
    const shell::ModuleWindow& window_;
    shell::WindowContext& context_;
};

} // namespace velmoriax::tarot
