// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "biorhythm/biorhythm_state.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/notification.h"
#include "platform/sounds.h"
#include "shell/average_gauge.h"
#include "shell/birth_alerts.h"
#include "shell/options_store.h"
#include "shell/tip_line_source.h"

namespace velmoriax::biorhythm {

/// The biorhythms behind the interfaces of the shell: the alerts, the line of the tray tip and the gauge.
class BiorhythmsForShell : public shell::BirthAlerts, public shell::TipLineSource, public shell::AverageGaugeSource {
public:
    struct Desktop {
        const platform::Clock& clock;
        platform::Files& files;
        platform::Sounds& sounds;
        const shell::OptionsStore& options;
    };

    BiorhythmsForShell(BiorhythmState& state, const Desktop& desktop) : state_(state), desktop_(desktop) {}

    /// Where the alerts are shown; while it is null, no alert is computed.
    platform::Notification* notification = nullptr;

    void loadAtStart() override;
    base::CivilDate birthDate() const override;
    void runAtStart() override;
    void runHalfHourly() override;

    std::string tipLine(base::DateValue now) override;
    std::string quietTipLine(base::DateValue now) override;

    bool loadBirth() override;
    void setWelcome(const std::string& text) override { state_.alerts.alertText = text; }
    shell::AverageGauge drawBioMedia(base::DateValue now) override;

private:
    void runAlerts();

    BiorhythmState& state_;
    Desktop desktop_;
};

} // namespace velmoriax::biorhythm
