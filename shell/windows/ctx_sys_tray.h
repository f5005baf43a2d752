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

/// The tray icon as a module uses it. Each module has one of these; only the module that is loaded has added its icon.
/// It reports the pointer and the clicks over the icon to the window, and shows the tip while the pointer rests there.
///
/// A tray window reports the pointer. A tray item does not: there the panel shows the icon's text by itself, so that
/// the text is the tip, and is renewed once a minute while tips are on.
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

    /// Adds the icon with a tip text of at most 128 characters. Does nothing while `noTrayAdd` is set.
    void AddIconToSystray(std::string_view text);

    bool isAdded() const { return added_; }

    /// Changes the tip text, to at most 128 characters; nothing while the icon is not added.
    void UpdateIcon(std::string_view text);

    /// Removes the icon and closes its tip. Does nothing when the icon is not added.
    void RemoveIconFromSystray();

    /// Shows the balloon: a text of at most 256 characters, a title of at most 64, and the sum of the flags above.
    void Popup(std::string_view text, std::string_view title, unsigned flags);
    void HidePopUp();

    /// To be called after tips were switched on or off.
    void tooltipsSwitched();

Q_SIGNALS:
    void MouseMouse(float X, float Y); ///< the pointer's place on the screen, in pixels
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
