// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "biorhythm/alert_messages.h"
#include "biorhythm/bio_state.h"
#include "platform/files.h"
#include "platform/notification.h"
#include "platform/sounds.h"

#include <string>
#include <string_view>

/// Turns the cycles into texts: the line of the tray tip with the average, and the alert. Decides as well whether an
/// alert is shown.
namespace velmoriax::biorhythm {

/// What the alerts and the windows share, and what is kept from one run to the next. Nothing of it is saved.
struct AlertState {
    bool manualAlert = false;  ///< set by the button of the view, until the next half-hour or until the view closes
    bool startupAlert = false; ///< true only during the one run at the start
    bool welcomeShown = false; ///< the help lines were shown since the view was loaded
    std::string bioTipText;    ///< the line of the tray tip
    std::string alertText;     ///< the text that the next alert starts from: the help lines or a welcome, else empty
    std::string lastAlertKey;  ///< the messages of the last run that was not by hand
};

/// Where an alert is shown and heard.
struct AlertOutlets {
    platform::Notification& notification;
    platform::Sounds& sounds;
};

/// What a run depends on.
struct AlertRun {
    std::string_view alertLevel; ///< one of the nine codes
    base::DateValue now;
    base::CivilDate viewReading; ///< the date of reading of the view, for a run by hand
};

/// The three lines that are shown instead of an alert while no birth date is set.
std::string helpLines();

/// Fills `bioTipText` for `now`, with the birth date from its file and the time of birth of `state`. Without a birth
/// date the text is left as it was. Throws what reading the birth date throws.
void biotip(const platform::Files& files, BioState& state, AlertState& alerts, base::DateValue now);

/// One run: computes, builds the text that the level allows, and opens the notification when there is reason to. Does
/// nothing without a birth date, and on level "zero" unless it is run by hand.
void alertasbio(AlertState& alerts, BioState& state, const AlertRun& run, const AlertOutlets& outlets);

/// The button of the view: the help lines while no birth date is set, else a run for the date of the view. An open
/// notification has to be closed first.
void alertByHand(AlertState& alerts, BioState& state, const AlertRun& run, const AlertOutlets& outlets);

/// True when the first activation of the view has to show the help lines.
bool helpIsDue(const AlertState& alerts, const BioState& state);

/// Shows the help lines, and keeps them in `alertText`.
void showHelpLines(AlertState& alerts, const AlertOutlets& outlets);

// The steps of a run.

/// The messages that the level puts at the head of an alert. A level that has no head of its own keeps `before`, the
/// text that the alert starts from.
std::string alertHead(std::string_view alertLevel, const AlertMessages& messages, const std::string& before);

/// The four value lines, such as "Physical: -97.53 % (falling)"; a cycle that does not change is falling.
std::string valueLines(const BioState& state);

/// All messages of a run in one text; those of the phases only on a level that shows them.
std::string alertKey(std::string_view alertLevel, const AlertMessages& messages);

/// True when a run opens the notification: always by hand and at the start, else when its key differs from that of the
/// last run. On level "solo" only by hand and at the start.
bool alertOpens(const AlertState& alerts, std::string_view alertLevel, std::string_view key);

} // namespace velmoriax::biorhythm
