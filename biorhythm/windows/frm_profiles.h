// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "biorhythm/windows/profile_list.h"
#include "shell/windows/secondary_window.h"

#include <memory>
#include <string>

namespace Ui {
class FrmProfiles;
}

namespace velmoriax::biorhythm {

/// Lists the lines of the profile file, of which the user can delete or modify one.
class FrmProfiles : public shell::SecondaryWindow, public ProfileList {
    Q_OBJECT

public:
    using ProfileList::windowName;

    explicit FrmProfiles(shell::WindowContext& context);
    ~FrmProfiles() override;

    void load() override;

    void ListaPerfiles() override;
    std::string selectedRecord() const override;

protected:
    void onUnload() override;

private:
    void deleteRecord();
    void modifyRecord();
    void exit();

    std::unique_ptr<Ui::FrmProfiles> ui_;
};

} // namespace velmoriax::biorhythm
