// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/windows/ctx_sys_tray.h"

#include "desktop/tray.h"
#include "shell/task_bar_metrics.h"
#include "shell/tray_tip.h"
#include "shell/windows/window_registry.h"
#include "widgets/conversions.h"

#include <QCursor>

#include <utility>

namespace velmoriax::shell {

namespace {

constexpr int textRefreshMs = 60000;
constexpr int retryAfterLoadMs = 100;
constexpr qsizetype longestTip = 128;
constexpr qsizetype longestBalloon = 256;
constexpr qsizetype longestTitle = 64;

QString text(std::string_view utf8, qsizetype longest) {
    return widgets::qtText(utf8).left(longest);
}

} // namespace

CtxSysTray::CtxSysTray(WindowContext& context, QMenu& popup) : context_(context), popup_(popup) {
    using desktop::Tray;
    Tray& tray = context.desktop.tray;
    connect(&tray, &Tray::pointerMoved, this, &CtxSysTray::pointerMoved);
    connect(&tray, &Tray::leftClicked, this, [this] { clicked(leftButton, false); });
    connect(&tray, &Tray::leftDoubleClicked, this, [this] { clicked(leftButton, true); });
    connect(&tray, &Tray::rightClicked, this, [this] { clicked(rightButton, false); });
    connect(&tray, &Tray::trayTaken, this, &CtxSysTray::followTipText);
    TimerTooltip_.setObjectName(QStringLiteral("TimerTooltip"));
    TimerTooltip_.setInterval(TipWatch::tickMs);
    connect(&TimerTooltip_, &QTimer::timeout, this, &CtxSysTray::tickTooltip);
    textTimer_.setObjectName(QStringLiteral("TimerTipText"));
    textTimer_.setInterval(textRefreshMs);
    textTimer_.setTimerType(Qt::VeryCoarseTimer);
    connect(&textTimer_, &QTimer::timeout, this, &CtxSysTray::refreshTipText);
}

CtxSysTray::~CtxSysTray() {
    RemoveIconFromSystray();
}

void CtxSysTray::AddIconToSystray(std::string_view tip) {
    if (context_.state.noTrayAdd) return;
    added_ = true;
    context_.desktop.tray.add(text(tip, longestTip), &popup_);
    textTimer_.stop(); // its text is not the tip any more
    followTipText();
}

void CtxSysTray::UpdateIcon(std::string_view tip) {
    if (added_) context_.desktop.tray.update(text(tip, longestTip));
}

void CtxSysTray::RemoveIconFromSystray() {
    // The next module may have added the icon already when this one is destroyed.
    if (!std::exchange(added_, false)) return;
    if (TimerTooltip_.isActive()) takeTipAway();
    watch_ = {};
    updateTimer();
    textTimer_.stop();
    context_.desktop.tray.remove();
}

void CtxSysTray::Popup(std::string_view words, std::string_view title, unsigned flags) {
    context_.desktop.tray.showBalloon(text(title, longestTitle), text(words, longestBalloon), flags & noSound);
}

void CtxSysTray::HidePopUp() {
    context_.desktop.tray.hideBalloon();
}

void CtxSysTray::pointerMoved() {
    if (!added_) return;
    const QPoint pointer = QCursor::pos();
    Q_EMIT MouseMouse(static_cast<float>(pointer.x()), static_cast<float>(pointer.y()));
    const bool mayStart = !context_.state.cardDescriptionOpen && !context_.state.viewLoading;
    switch (watch_.pointerMoved(tooltips(), mayStart, context_.state)) {
    case TipWatch::MoveAction::measure:
        measureTrayCell();
        UpdateIcon(""); // a name left from the time when tips were off would be shown beside ours
        break;
    case TipWatch::MoveAction::showName:
        UpdateIcon(programName);
        break;
    case TipWatch::MoveAction::none:
        break;
    }
    updateTimer();
}

/// The window handles the click first, then the watch ends.
void CtxSysTray::clicked(int button, bool twice) {
    if (!added_) return;
    if (twice)
        Q_EMIT DblClick(button);
    else
        Q_EMIT MouseUp(button);
    watch_.clicked(context_.state);
    updateTimer();
    takeTipAway();
    followTipText();
}

void CtxSysTray::measureTrayCell() {
    ShellState& shell = context_.state;
    getTaskBarMetrics(context_.desktop.taskBar, shell);
    shell.taskBarAtBottom = shell.taskBarLocation == platform::TaskBarPosition::bottomEdge;
}

/// The tray reports the icon's true rectangle, wherever the panel has moved it meanwhile.
void CtxSysTray::tickTooltip() {
    const bool onIcon = context_.desktop.tray.geometry().contains(QCursor::pos());
    switch (watch_.tick(tooltips(), onIcon, context_.state)) {
    case TipWatch::TickAction::raise:
        raiseTip();
        break;
    case TipWatch::TickAction::takeAway:
        takeTipAway();
        break;
    case TipWatch::TickAction::none:
        break;
    }
    updateTimer();
}

void CtxSysTray::raiseTip() {
    if (!context_.options.holders.personalTooltips()) return showTrayBalloon();
    UpdateIcon("");
    if (!context_.state.viewLoading) context_.windows.touch("FrmToolTip");
}

/// Of both styles, since the style may have been changed while the tip was shown.
void CtxSysTray::takeTipAway() {
    context_.windows.unload("FrmToolTip");
    context_.state.tipShown = false;
    HidePopUp();
}

void CtxSysTray::showTrayBalloon() {
    const bool silent = context_.options.holders.silentTooltips();
    const std::string lines = balloonTextNow();
    // Events were processed inside: a change of module perhaps, or a click, over whose window no tip is to be shown.
    if (!added_ || !watch_.wantsTicks(tooltips())) return;
    Popup(lines, programName, silent ? informationIcon | noSound : informationIcon);
}

std::string CtxSysTray::balloonTextNow() const {
    const Subsystems& subsystems = context_.subsystems;
    return balloonText(subsystems.alerts.birthDate(), context_.desktop.clock.now(), subsystems.tipLines);
}

void CtxSysTray::tooltipsSwitched() {
    if (!added_) return;
    UpdateIcon(tooltipsOff() ? programName : std::string_view{});
    updateTimer();
    followTipText();
}

/// Starts or stops the timer that renews the text of an item.
void CtxSysTray::followTipText() {
    const desktop::Tray& tray = context_.desktop.tray;
    const bool panelShowsText = added_ && tray.decided() && !tray.reportsPointer() && !tooltipsOff();
    if (!panelShowsText) return textTimer_.stop();
    if (textTimer_.isActive()) return;
    textTimer_.start();
    QTimer::singleShot(0, this, &CtxSysTray::refreshTipText);
}

void CtxSysTray::refreshTipText() {
    if (!added_ || tooltipsOff()) return;
    if (context_.state.viewLoading) {
        QTimer::singleShot(retryAfterLoadMs, this, &CtxSysTray::refreshTipText);
        return;
    }
    const Subsystems& subsystems = context_.subsystems;
    const std::string text =
        panelText(subsystems.alerts.birthDate(), context_.desktop.clock.now(), subsystems.tipLines);
    const QString lines = widgets::qtText(text).remove(u'\r');
    if (added_) context_.desktop.tray.update(lines);
}

/// The timer is stopped while its ticks would do nothing, so that they do not wake the program.
void CtxSysTray::updateTimer() {
    if (!watch_.wantsTicks(tooltips())) return TimerTooltip_.stop();
    if (!TimerTooltip_.isActive()) TimerTooltip_.start();
}

} // namespace velmoriax::shell
