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

/// Edits the record that is chosen in the list of profiles. The copy of the list without it is made when the window
/// loads and takes the list's place on "Submit"; "Cancel" leaves the copy among the temporary files. No other window
/// answers meanwhile, so that nothing is saved that the copy would undo.
class FormMod : public shell::SecondaryWindow {
    Q_OBJECT

public:
    static constexpr std::string_view windowName = "FormMod";

    explicit FormMod(shell::WindowContext& context);
    ~FormMod() override;

    void load() override;

private:
    ProfileList* list() const;
    void showRecord(const std::string& line);
    void submit();

    std::unique_ptr<Ui::FormMod> ui_;
    std::string tempPath_; ///< of the copy without the record
};

} // namespace velmoriax::biorhythm
