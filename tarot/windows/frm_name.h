// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tarot/windows/result_menu.h"
#include "tarot/windows/tarot_context.h"

#include <memory>

namespace Ui {
class FrmName;
}

namespace velmoriax::tarot {

/// The card of a person's names.
class FrmName : public shell::ModuleWindow {
    Q_OBJECT

public:
    FrmName(shell::WindowContext& context, TarotContext& tarot);
    ~FrmName() override;

    /// Turns Enter into Tab, ahead of every control.
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void ownLoad() override;
    void ownCommand(std::string_view name) override { results_.run(name); }

private:
    void connectControls();
    NameFields typedNames() const;
    void submit();
    void reset();
    void describeCard();

    TarotContext& tarot_;
    std::unique_ptr<Ui::FrmName> ui_;
    ResultMenu results_;
    std::int16_t nameCard_ = 0; ///< of the latest reading; the reset keeps it
};

} // namespace velmoriax::tarot
