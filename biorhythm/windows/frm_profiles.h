// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/windows/secondary_window.h"

#include <memory>
#include <string>

namespace Ui {
class FrmProfiles;
}

namespace velmoriax::biorhythm {

/// The records of the profile list as they stand in the file, to be deleted or modified.
class FrmProfiles : public shell::SecondaryWindow {
    Q_OBJECT

public:
    explicit FrmProfiles(shell::Process& process);
    ~FrmProfiles() override;

    void load() override;

    /// Fills the list from the file.
    void ListaPerfiles();

    /// The line that is chosen; empty when none is.
    std::string selectedRecord() const;

protected:
    void onUnload() override;

private:
    void deleteRecord();
    void modifyRecord();
    void exit();

    std::unique_ptr<Ui::FrmProfiles> ui_;
};

} // namespace velmoriax::biorhythm
