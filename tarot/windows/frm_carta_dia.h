// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/windows/module_window.h"

#include <memory>

namespace Ui {
class FrmCartaDia;
}

namespace velmoriax::tarot {

/// The card of today.
class FrmCartaDia : public shell::ModuleWindow {
    Q_OBJECT

public:
    explicit FrmCartaDia(shell::Process& process);
    ~FrmCartaDia() override;

protected:
    void beforeOptions() override;
    void ownLoad() override;
    void onUnload() override;

private:
    void showCardOfToday();
    void describeCard();

    std::unique_ptr<Ui::FrmCartaDia> ui_;
    std::int16_t dayCard_ = 0;
};

} // namespace velmoriax::tarot
