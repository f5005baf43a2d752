// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/windows/ctx_sys_tray.h"

#include "shell/task_bar_metrics.h"
#include "shell/windows/tip_contents.h"
#include "shell/windows/window_registry.h"

#include <QCursor>

#include <utility>

namespace velmoriax::shell {

namespace {

constexpr int textRefreshMs = 60000;
constexpr qsizetype longestTip = 128;
constexpr qsizetype longestBalloon = 256;
constexpr qsizetype longestTitle = 64;

QString text(std::string_view utf8, qsizetype longest) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size())).left(longest);
}

} // namespace

CtxSysTray::CtxSysTray(Process& process, QMenu& popup) : process_(process), popup_(popup) {
    using desktop::DesktopTray;
    DesktopTray& tray = process.desktop.tray;
    connect(&tray, &DesktopTray::pointerMoved, this, &CtxSysTray::pointerMoved);
    connect(&tray, &DesktopTray::leftClicked, this, [this] { clicked(leftButton, false); });
    connect(&tray, &DesktopTray::leftDoubleClicked, this, [this] { clicked(leftButton, true); });
    connect(&tray, &DesktopTray::rightClicked, this, [this] { clicked(rightButton, false); });
    connect(&tray, &DesktopTray::trayTaken, this, &CtxSysTray::followTipText);
    TimerTooltip_.setObjectName(QStringLiteral("TimerTooltip"));
    TimerTooltip_.setInterval(TipWatch::tickMs);
    connect(&TimerTooltip_, &QTimer::timeout, this, &CtxSysTray::tickTooltip);
    textTimer_.setInterval(textRefreshMs);
    textTimer_.setTimerType(Qt::VeryCoarseTimer);
    connect(&textTimer_, &QTimer::timeout, this, &CtxSysTray::refreshTipText);
}

CtxSysTray::~CtxSysTray() {
    RemoveIconFromSystray();
}

void CtxSysTray::AddIconToSystray(std::string_view tip) {
    if (process_.record.shell.noTrayAdd) return;
    added_ = true;
    process_.desktop.tray.add(text(tip, longestTip), &popup_);
    followTipText();
}

void CtxSysTray::UpdateIcon(std::string_view tip) {
    if (added_) process_.desktop.tray.update(text(tip, longestTip));
}

void CtxSysTray::RemoveIconFromSystray() {
    // The next module may have added the icon already when this one is destroyed.
    if (!std::exchange(added_, false)) return;
    if (TimerTooltip_.isActive()) takeTipAway();
    watch_ = {};
    updateTimer();
    textTimer_.stop();
    process_.desktop.tray.remove();
}

void CtxSysTray::Popup(std::string_view words, std::string_view title, unsigned flags) {
    process_.desktop.tray.showBalloon(text(title, longestTitle), text(words, longestBalloon), flags & noSound);
}

void CtxSysTray::HidePopUp() {
    process_.desktop.tray.hideBalloon();
}

void CtxSysTray::pointerMoved() {
    if (!added_) return;
    const QPoint pointer = QCursor::pos();
    Q_EMIT MouseMouse(static_cast<float>(pointer.x()), static_cast<float>(pointer.y()));
    const bool mayStart = !process_.record.cards.cardDescriptionOpen && !process_.record.shell.viewLoading;
    switch (watch_.pointerMoved(tooltips(), mayStart, process_.record.shell)) {
    case TipWatch::MoveDeed::measure:
        measureTrayCell();
        UpdateIcon(""); // a name left from the time when tips were off would stand beside ours
        break;
    case TipWatch::MoveDeed::showName:
        UpdateIcon(programName);
        break;
    case TipWatch::MoveDeed::none:
        break;
    }
    updateTimer();
}

/// The window answers first, then the watch ends.
void CtxSysTray::clicked(int button, bool twice) {
    if (!added_) return;
    if (twice)
        Q_EMIT DblClick(button);
    else
        Q_EMIT MouseUp(button);
    watch_.clicked(process_.record.shell);
    updateTimer();
    takeTipAway();
    followTipText();
}

void CtxSysTray::measureTrayCell() {
    ShellState& shell = process_.record.shell;
    getTaskBarMetrics(process_.desktop.taskBar, shell);
    shell.taskBarAtBottom = shell.taskBarLocation == platform::TaskBarPosition::bottomEdge;
}

/// The tray tells the icon's true rectangle, wherever the panel has moved it meanwhile.
void CtxSysTray::tickTooltip() {
    const bool onIcon = process_.desktop.tray.geometry().contains(QCursor::pos());
    switch (watch_.tick(tooltips(), onIcon, process_.record.shell)) {
    case TipWatch::TickDeed::raise:
        raiseTip();
        break;
    case TipWatch::TickDeed::takeAway:
        takeTipAway();
        break;
    case TipWatch::TickDeed::none:
        break;
    }
    updateTimer();
}

void CtxSysTray::raiseTip() {
    if (process_.record.options.holders.estiloTooltips != "personal") return showTrayBalloon();
    UpdateIcon("");
    if (!process_.record.shell.viewLoading) process_.windows.touch("FrmToolTip", process_);
}

/// Of both styles, since the style may have been changed while the tip stood.
void CtxSysTray::takeTipAway() {
    process_.windows.unload("FrmToolTip");
    process_.record.shell.tipShown = false;
    HidePopUp();
}

void CtxSysTray::showTrayBalloon() {
    const bool silent = process_.record.options.holders.modoSilencioso == "mudo";
    const std::string lines = balloonTextNow(process_);
    if (!added_) return; // events have run inside, a hand-over among them
    Popup(lines, programName, silent ? informationIcon | noSound : informationIcon);
}

void CtxSysTray::tooltipsSwitched() {
    if (!added_) return;
    UpdateIcon(tooltipsOff() ? programName : std::string_view{});
    updateTimer();
    followTipText();
}

/// Starts or ends the minutes of the item's text.
void CtxSysTray::followTipText() {
    const desktop::DesktopTray& tray = process_.desktop.tray;
    const bool panelShowsText = added_ && tray.decided() && !tray.tellsPointer() && !tooltipsOff();
    if (!panelShowsText) return textTimer_.stop();
    if (textTimer_.isActive()) return;
    textTimer_.start();
    QTimer::singleShot(0, this, &CtxSysTray::refreshTipText);
}

void CtxSysTray::refreshTipText() {
    if (!added_ || tooltipsOff() || process_.record.shell.viewLoading) return;
    const QString lines = QString::fromStdString(balloonTextNow(process_)).remove(u'\r');
    if (added_) process_.desktop.tray.update(lines);
}

/// Ticks that would do nothing need not wake the program up.
void CtxSysTray::updateTimer() {
    if (!watch_.wantsTicks(tooltips())) return TimerTooltip_.stop();
    if (!TimerTooltip_.isActive()) TimerTooltip_.start();
}

} // namespace velmoriax::shell
