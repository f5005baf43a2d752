// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/windows/module_window.h"

#include <memory>

namespace Ui {
class FrmName;
}

namespace velmoriax::tarot {

class FrmName : public shell::ModuleWindow {
    Q_OBJECT

public:
    explicit FrmName(shell::Process& process);
    ~FrmName() override;

protected:
    void ownLoad() override;

private:
    std::unique_ptr<Ui::FrmName> ui_;
};

} // namespace velmoriax::tarot
