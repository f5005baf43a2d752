// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/about_text.h"
#include "shell/windows/secondary_window.h"

#include <memory>
#include <string_view>

namespace Ui {
class frmAbout;
}

namespace velmoriax::shell {

/// Names the program and its version, says what the modules are for, and leads to the help and to the maker's pages.
class frmAbout : public SecondaryWindow {
    Q_OBJECT

public:
    static constexpr std::string_view windowName = "frmAbout";

    explicit frmAbout(WindowContext& context);
    ~frmAbout() override;

    void load() override;

protected:
    /// The tray tip works again after the box that the tray menu opened.
    void onUnload() override { state().trayBusy = false; }

    /// The pointer is over the free surface: no link is underlined.
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void connectWays();

    std::unique_ptr<Ui::frmAbout> ui_;
    AboutText text_;
};

} // namespace velmoriax::shell
