// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/windows/module_window.h"

#include <memory>

namespace Ui {
class frmVelmoriax;
}

namespace velmoriax::tarot {

class frmVelmoriax : public shell::ModuleWindow {
    Q_OBJECT

public:
    explicit frmVelmoriax(shell::Process& process);
    ~frmVelmoriax() override;

protected:
    void ownLoad() override;

private:
    std::unique_ptr<Ui::frmVelmoriax> ui_;
};

} // namespace velmoriax::tarot
