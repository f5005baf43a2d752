// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/tip_watch.h"
#include "shell/windows/window_context.h"

#include <QMenu>
#include <QObject>
#include <QPoint>
#include <QTimer>

#include <string_view>

namespace velmoriax::shell {

/// A module's hold on the tray icon. Each module has one; the icon of the module that is loaded is the only one. It
/// turns what happens over the icon into events for its window, and raises the tip while the pointer rests there.
///
/// A tray window reports the pointer. A tray item does not: there the panel shows our text by itself, so that the
/// text is the tip, and is made anew once a minute while tips are on.
class CtxSysTray : public QObject {
    Q_OBJECT

public:
    static constexpr int leftButton = 1;
    static constexpr int rightButton = 2;
    static constexpr unsigned informationIcon = 1;
    static constexpr unsigned noSound = 16;

    /// `popup` is the window's menu "MnuIcon".
    CtxSysTray(WindowContext& context, QMenu& popup);
    ~CtxSysTray() override;

    /// Adds the icon with a tip text of at most 128 characters. Does nothing while `noTrayAdd` is up.
    void AddIconToSystray(std::string_view text);

    /// Changes the tip text.
    void UpdateIcon(std::string_view text);

    void RemoveIconFromSystray();

    /// Shows the balloon: a text of at most 256 characters, a title of at most 64, the flags added up.
    void Popup(std::string_view text, std::string_view title, unsigned flags);
    void HidePopUp();

    /// Tips were switched on or off.
    void tooltipsSwitched();

Q_SIGNALS:
    void MouseMouse(float X, float Y);
    void MouseUp(int Button);
    void DblClick(int Button);

private:
    void pointerMoved();
    void clicked(int button, bool twice);
    void measureTrayCell();
    void tickTooltip();
    void raiseTip();
    void takeTipAway();
    void showTrayBalloon();
    std::string balloonTextNow() const;
    void followTipText();
    void refreshTipText();
    void updateTimer();
    const std::string& tooltips() const { return context_.options.holders.tooltips; }
    bool tooltipsOff() const { return context_.options.holders.tooltipsOff(); }

    WindowContext& context_;
    QMenu& popup_;
    bool added_ = false;
    TipWatch watch_;
    QTimer TimerTooltip_{this};
    QTimer textTimer_{this};
};

} // namespace velmoriax::shell
