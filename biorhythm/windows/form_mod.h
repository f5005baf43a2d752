// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/windows/secondary_window.h"

#include <memory>
#include <optional>
#include <string>

namespace Ui {
class FormMod;
}

namespace velmoriax::biorhythm {

class ProfileList;

/// Edits the record that is selected in the list of profiles. A copy of the list without that record is made when the
/// window loads; "Submit" replaces the list by it, "Cancel" leaves it in the temporary folder. The window is modal:
/// whatever another window saved meanwhile would be lost with "Submit".
class FormMod : public shell::SecondaryWindow {
    Q_OBJECT

public:
    static constexpr std::string_view windowName = "FormMod";

    explicit FormMod(shell::WindowContext& context);
    ~FormMod() override;

    void load() override;

private:
    void showRecord(const std::string& line);
    void submit();

    std::unique_ptr<Ui::FormMod> ui_;
    std::string tempPath_; ///< of the copy without the record
};

} // namespace velmoriax::biorhythm
