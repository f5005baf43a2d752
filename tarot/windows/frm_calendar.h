// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/windows/module_window.h"

#include <memory>

namespace Ui {
class FrmCalendar;
}

namespace velmoriax::tarot {

class FrmCalendar : public shell::ModuleWindow {
    Q_OBJECT

public:
    explicit FrmCalendar(shell::Process& process);
    ~FrmCalendar() override;

protected:
    void ownLoad() override;

private:
    std::unique_ptr<Ui::FrmCalendar> ui_;
};

} // namespace velmoriax::tarot
