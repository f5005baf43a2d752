// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/windows/secondary_window.h"

#include <memory>
#include <string_view>

namespace Ui {
class FrmToolTip;
}

namespace velmoriax::shell {

/// The personal tooltip: shown over the tray icon while the pointer rests there, and never under the pointer.
class FrmToolTip : public SecondaryWindow {
    Q_OBJECT

public:
    static constexpr std::string_view windowName = "FrmToolTip";

    explicit FrmToolTip(WindowContext& context);
    ~FrmToolTip() override;

    void load() override;

    /// The moon of today, as the card of the day shows it. Throws what a missing picture throws.
    void refreshTipMoon();

protected:
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void fill();

    std::unique_ptr<Ui::FrmToolTip> ui_;
};

} // namespace velmoriax::shell
