// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/windows/secondary_window.h"

#include <functional>
#include <memory>
#include <string_view>

namespace Ui {
class Notif;
}

namespace velmoriax::shell {

/// The notification: slides up over the panel to show `notificationText` and slides away again. It takes no focus and
/// is above the other windows.
class Notif : public SecondaryWindow {
    Q_OBJECT

public:
    static constexpr std::string_view windowName = "Notif";

    explicit Notif(WindowContext& context);
    ~Notif() override;

    void load() override;

    static constexpr int up = 0;
    static constexpr int down = 1;

    /// Slides `Ventana`, which is this window, up or down. One that is shown goes down in either direction, and is
    /// hidden there. Events are processed at each step, so that a slide may begin inside another, which then ends.
    void SlideForm(QWidget& Ventana, int Direction);

    /// Slides down and unloads the window, unless a newer text is shown by then.
    void dismiss();

protected:
    void onUnload() override;

private:
    void takeSize();
    void fitText();
    void layOut();
    bool textFits(const QFont& letters) const;
    void slideUp(QWidget& Ventana);
    void slideDown(QWidget& Ventana);
    bool slide(QWidget& Ventana, int step, const std::function<int()>& goal);

    std::unique_ptr<Ui::Notif> ui_;
    int slides_ = 0; ///< that have begun
    int top_ = 0;    ///< of the window, in pixels: what the desktop reports of it comes late
};

} // namespace velmoriax::shell
