// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/windows/frm_timer.h"

#include "biorhythm/profile_files.h"
#include "shell/modules.h"
#include "shell/windows/module_window.h"
#include "shell/windows/notifications.h"
#include "shell/windows/window_registry.h"
#include "sky/moon_engine.h"
#include "sky/moon_texts.h"
#include "sky/time_zone_shift.h"
#include "sky/zodiac.h"

namespace velmoriax::shell {

namespace {

constexpr int timeUpAfterMs = 20;
constexpr int timerBioMs = 30000;

} // namespace

FrmTimer::FrmTimer(Process& process) : process_(process), timeUp_(timeUpAfterMs, this), timerBio_(this) {
    timeUp_.setObjectName(QStringLiteral("TimeUp"));
    timerBio_.setObjectName(QStringLiteral("TimerBio"));
    connect(&timeUp_, &QTimer::timeout, this, &FrmTimer::tickSecond);
    connect(&timerBio_, &QTimer::timeout, this, &FrmTimer::tickHalfMinute);
    process.tips = this;
}

void FrmTimer::load() {
    timeUp_.begin();
    timerBio_.start(timerBioMs);
    startUptime(record().agent, desktop().clock.now());
    biorhythm::createMissingProfileFiles(desktop().files);
    biorhythm::loadBirth(desktop().files, record().bio);
    record().options.readAtStart();
    process_.windows.touch(firstModule(record().options.leerModuloInicial()), process_);
    QTimer::singleShot(untilFirstWindowStandsMs, this, &FrmTimer::runStartupAlert);
}

void FrmTimer::runStartupAlert() {
    record().alerts.startupAlert = true;
    runAlerts();
    record().alerts.startupAlert = false;
}

void FrmTimer::tickSecond() {
    if (!timeUpTick(record().agent, desktop().clock.now(), record().shell.notifOpen)) return;
    if (process_.notification) process_.notification->slideDown();
    desktop().events.letRun();
}

void FrmTimer::tickHalfMinute() {
    if (!timerBioTick(record().agent)) return;
    record().alerts.manualAlert = false;
    runAlerts();
}

void FrmTimer::runAlerts() {
    if (!process_.notification) return;
    const base::DateValue now = desktop().clock.now();
    biorhythm::alertasbio(record().alerts, record().bio, record().options.holders.alertLevel,
                          {now, base::civilDateOf(now)}, {*process_.notification, desktop().sounds});
}

TipLines FrmTimer::tipLines() {
    const base::DateValue now = desktop().clock.now();
    const platform::Files& files = desktop().files;
    TipLines lines;
    tipcartadia(record().agent, base::civilDateOf(now), files.applicationDirectory(),
                record().options.holders.tipocartas, record().cards);
    lines.tipCard = record().agent.tipCard;
    lines.tipSign = sky::agent::tipsignzodiac({files, desktop().zone}, now, record().sky);
    biorhythm::biotip(files, record().bio, record().alerts, now);
    lines.bioTipText = record().alerts.bioTipText;
    lines.tipMoon =
        sky::lunatip(sky::MoonEngine(desktop().events), sky::localToUniversal(now, desktop().zone), record().sky);
    return lines;
}

} // namespace velmoriax::shell
