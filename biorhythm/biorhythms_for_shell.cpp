// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/biorhythms_for_shell.h"

#include "base/run_time_error.h"
#include "biorhythm/bio_gauge.h"
#include "biorhythm/profile_files.h"

namespace velmoriax::biorhythm {

void BiorhythmsForShell::loadAtStart() {
    createMissingProfileFiles(desktop_.files);
    biorhythm::loadBirth(desktop_.files, state_.bio);
}

base::CivilDate BiorhythmsForShell::birthDate() const {
    return {state_.bio.birthYear, state_.bio.birthMonth, state_.bio.birthDay};
}

void BiorhythmsForShell::runAtStart() {
    state_.alerts.startupAlert = true;
    runAlerts();
    state_.alerts.startupAlert = false;
}

void BiorhythmsForShell::runHalfHourly() {
    state_.alerts.manualAlert = false;
    runAlerts();
}

void BiorhythmsForShell::runAlerts() {
    if (!notification) return;
    const base::DateValue now = desktop_.clock.now();
    alertasbio(state_.alerts, state_.bio, {desktop_.options.holders.alertLevel, now, base::civilDateOf(now)},
               {*notification, desktop_.sounds});
}

std::string BiorhythmsForShell::tipLine(base::DateValue now) {
    biotip(desktop_.files, state_.bio, state_.alerts, now);
    return state_.alerts.bioTipText;
}

std::string BiorhythmsForShell::quietTipLine(base::DateValue now) {
    BioState bio = state_.bio;
    AlertState alerts = state_.alerts;
    try {
        biotip(desktop_.files, bio, alerts, now);
    } catch (const base::RunTimeError&) {
        // A file that was spoilt while the program runs ends it when something needs the file, and not by this line.
    }
    return alerts.bioTipText;
}

bool BiorhythmsForShell::loadBirth() {
    loadBirthTime(desktop_.files, state_.bio);
    biorhythm::loadBirth(desktop_.files, state_.bio);
    return birthDateIsSet(state_.bio);
}

shell::AverageGauge BiorhythmsForShell::drawBioMedia(base::DateValue now) {
    return biorhythm::drawBioMedia(state_.bio, now);
}

} // namespace velmoriax::biorhythm
