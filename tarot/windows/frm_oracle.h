// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/windows/module_window.h"

#include <memory>

namespace Ui {
class Frmoracle;
}

namespace velmoriax::tarot {

class Frmoracle : public shell::ModuleWindow {
    Q_OBJECT

public:
    explicit Frmoracle(shell::Process& process);
    ~Frmoracle() override;

protected:
    void ownLoad() override;

private:
    std::unique_ptr<Ui::Frmoracle> ui_;
};

} // namespace velmoriax::tarot
