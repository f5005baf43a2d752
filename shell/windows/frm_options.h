// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/options_dialog.h"
#include "shell/windows/secondary_window.h"

#include <memory>
#include <string_view>

class QComboBox;

namespace Ui {
class FrmOptions;
}

namespace velmoriax::shell {

/// The settings. Each control works at the moment it is changed; the one button only closes the window.
class FrmOptions : public SecondaryWindow {
    Q_OBJECT

public:
    static constexpr std::string_view windowName = "FrmOptions";

    explicit FrmOptions(WindowContext& context);
    ~FrmOptions() override;

    void load() override;

private:
    void connectOptions();
    void connectList(QComboBox& box, OptionList list);
    void showState();
    void closeByButton();
    void tellTray();

    std::unique_ptr<Ui::FrmOptions> ui_;
    OptionsDialog dialog_;
};

} // namespace velmoriax::shell
