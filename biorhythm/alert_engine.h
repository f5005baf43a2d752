// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "biorhythm/alert_messages.h"
#include "biorhythm/bio_state.h"
#include "platform/files.h"
#include "platform/notification.h"
#include "platform/sounds.h"

#include <string>
#include <string_view>

/// Turns the cycles into words: the average of the tray tip, and the alert with the decision whether to show it.
namespace velmoriax::biorhythm {

/// What the alerts share with the windows and keep from one run to the next; nothing of it is saved.
struct AlertState {
    bool manualAlert = false;  ///< from the button of the view until the next half-hour or the closing of the view
    bool startupAlert = false; ///< up for the one run at start
    bool welcomeShown = false; ///< the help lines were shown since the view was loaded
    std::string bioTipText;    ///< the line of the tray tip
    std::string alertText;     ///< the text of the notification; emptied by each run, but not by the help lines
    std::string lastAlertKey;  ///< the messages of the last run that was not by hand
};

struct AlertOutlets {
    platform::Notification& notification;
    platform::Sounds& sounds;
};

/// Where a run stands: the present, and the date of reading of the view for a run by hand.
struct AlertMoment {
    base::DateValue now;
    base::CivilDate viewReading;
};

/// The three lines that stand in for an alert while no birth date is set.
std::string helpLines();

/// Fills `bioTipText` for now with the birth date of the file and the time of birth that the record holds; an unset
/// birth date leaves it. Throws what reading the birth date throws.
void biotip(const platform::Files& files, BioState& state, AlertState& record, base::DateValue now);

/// One run: computes, builds the text that `alertLevel` (one of the nine codes) allows, and opens the notification when
/// there is reason to. Does nothing without a birth date, and on level "zero" unless it is run by hand.
void alertasbio(AlertState& record, BioState& state, std::string_view alertLevel, const AlertMoment& moment,
                const AlertOutlets& outlets);

/// The button of the view: the help lines while no birth date is set, else a run for the date of the view. A
/// notification that stands is to be taken away first.
void alertByHand(AlertState& record, BioState& state, std::string_view alertLevel, const AlertMoment& moment,
                 const AlertOutlets& outlets);

/// True when the first activation of the view has to show the help lines.
bool helpIsDue(const AlertState& record, const BioState& state);

/// Shows the help lines, which stay in `alertText`.
void showHelpLines(AlertState& record, const AlertOutlets& outlets);

// The steps of a run.

/// The head of the alert of a level. `before` is the text as it stands, which the levels keep that build no head.
std::string alertHead(std::string_view alertLevel, const AlertMessages& messages, const std::string& before);

/// The four value lines, such as "Physical: -97.53 % (falling)"; a tie reads falling.
std::string valueLines(const BioState& state);

/// All messages of a run, one behind the other; those of the phases only on a level that uses them.
std::string alertKey(std::string_view alertLevel, const AlertMessages& messages);

/// Whether a run opens the notification: by hand and at start always, else when its key is a new one; level "solo" has
/// nothing new to tell then.
bool alertOpens(const AlertState& record, std::string_view alertLevel, std::string_view key);

} // namespace velmoriax::biorhythm
