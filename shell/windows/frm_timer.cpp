// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/windows/frm_timer.h"

#include "shell/modules.h"
#include "shell/windows/module_switcher.h"
#include "shell/windows/notifications.h"
#include "shell/windows/window_registry.h"

namespace velmoriax::shell {

namespace {

constexpr int timeUpAfterMs = 20;
constexpr int timerBioMs = 30000;

} // namespace

FrmTimer::FrmTimer(WindowContext& context) : context_(context), timeUp_(timeUpAfterMs, this), timerBio_(this) {
    timeUp_.setObjectName(QStringLiteral("TimeUp"));
    timerBio_.setObjectName(QStringLiteral("TimerBio"));
    connect(&timeUp_, &QTimer::timeout, this, &FrmTimer::tickSecond);
    connect(&timerBio_, &QTimer::timeout, this, &FrmTimer::tickHalfMinute);
}

void FrmTimer::load() {
    timeUp_.begin();
    timerBio_.start(timerBioMs);
    startUptime(context_.agent, context_.desktop.clock.now());
    context_.subsystems.alerts.loadAtStart();
    context_.options.readAtStart();
    const ModuleInfo& first = firstModule(context_.windows.modules(), context_.options.leerModuloInicial());
    context_.switcher.loadFirst(first.windowName);
    QTimer::singleShot(firstWindowDelayMs, this, [this] { context_.subsystems.alerts.runAtStart(); });
}

void FrmTimer::tickSecond() {
    if (!timeUpTick(context_.agent, context_.desktop.clock.now(), context_.state.notifOpen)) return;
    if (context_.notification) context_.notification->slideDown();
    context_.desktop.events.processEvents();
}

void FrmTimer::tickHalfMinute() {
    if (timerBioTick(context_.agent)) context_.subsystems.alerts.runHalfHourly();
}

} // namespace velmoriax::shell
