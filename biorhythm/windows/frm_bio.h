// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/windows/module_window.h"

#include <memory>

namespace Ui {
class frmBio;
}

namespace velmoriax::biorhythm {

class frmBio : public shell::ModuleWindow {
    Q_OBJECT

public:
    explicit frmBio(shell::Process& process);
    ~frmBio() override;

protected:
    void ownLoad() override;

private:
    std::unique_ptr<Ui::frmBio> ui_;
};

} // namespace velmoriax::biorhythm
