// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tarot/windows/result_menu.h"
#include "tarot/windows/tarot_context.h"

#include <memory>

namespace Ui {
class frmVelmoriax;
}

namespace velmoriax::tarot {

/// The card of a number.
class frmVelmoriax : public shell::ModuleWindow {
    Q_OBJECT

public:
    frmVelmoriax(shell::WindowContext& context, TarotContext& tarot);
    ~frmVelmoriax() override;

protected:
    void ownLoad() override;
    void ownCommand(std::string_view name) override { results_.run(name); }

private:
    void connectControls();
    void submit();
    void reset();
    void describeCard();

    TarotContext& tarot_;
    std::unique_ptr<Ui::frmVelmoriax> ui_;
    ResultMenu results_;
    std::int16_t numberCard_ = 0; ///< of the latest reading; the reset keeps it
};

} // namespace velmoriax::tarot
