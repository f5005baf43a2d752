// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/alert_engine.h"

#include "base/text_lines.h"
#include "biorhythm/cycle_engine.h"
#include "biorhythm/profile_files.h"

#include <algorithm>

namespace velmoriax::biorhythm {

namespace {

/// A part of an alert's head.
enum class Part { none, phases, critical, crossing };

/// How a level builds the head. The orders differ from level to level, and the three medium levels put the line break
/// after their first part even when no other follows.
struct HeadRule {
    std::string_view level;
    std::array<Part, 3> order;
    bool breakBeforeEmpty;
};
constexpr std::array<HeadRule, 8> headRules{{
    {"zero", {Part::phases, Part::critical, Part::crossing}, false},
    {"bas1", {Part::phases}, false},
    {"bas2", {Part::critical}, false},
    {"bas3", {Part::crossing}, false},
    {"med1", {Part::critical, Part::phases}, true},
    {"med2", {Part::critical, Part::crossing}, true},
    {"med3", {Part::crossing, Part::phases}, true},
    {"maxi", {Part::phases, Part::critical, Part::crossing}, false},
}};
constexpr std::string_view levelOfLinesAlone = "solo";

/// Between the head and the value lines.
constexpr std::string_view ruledLine = "\r\n---------------------------------------------\r\n";

const HeadRule* ruleOf(std::string_view level) {
    const auto* rule = std::ranges::find(headRules, level, &HeadRule::level);
    return rule == headRules.end() ? nullptr : rule;
}

std::string textOf(Part part, const AlertMessages& messages) {
    switch (part) {
    case Part::phases:
        return phaseMessagesJoined(messages.phases);
    case Part::critical:
        return std::string(messages.critical);
    case Part::crossing:
        return std::string(messages.crossing);
    case Part::none:
        break;
    }
    return {};
}

bool buildsText(std::string_view level) {
    return level == levelOfLinesAlone || ruleOf(level) != nullptr;
}

std::string alertTextOf(std::string_view level, const AlertMessages& messages, const BioState& state,
                        const std::string& before) {
    if (!buildsText(level)) return before;
    std::string text = alertHead(level, messages, before);
    if (!text.empty() && level != levelOfLinesAlone) text += ruledLine;
    return text + valueLines(state);
}

CyclesAround cyclesAround(const BioState& state) {
    return {.cycleBack = cyclesAt(state.lived - oneHour), .cycle = state.cycle, .cycleNext = state.cycleNext};
}

void computeAt(BioState& state, base::CivilDate reading, base::CivilTime clock) {
    computeLived(state, birthOf(state), reading, clock);
    computeCycles(state);
}

void openNotification(const std::string& text, const AlertOutlets& outlets) {
    outlets.notification.slideUp(text);
    if (outlets.notification.isOpen()) outlets.sounds.playWav("Url.wav");
}

std::string_view tipMark(shell::Trend trend) {
    constexpr std::array<std::string_view, 3> marks{" % (<)", " % (=)", " % (>)"};
    return marks[static_cast<std::size_t>(trend)];
}

} // namespace

std::string helpLines() {
    return "- Insert the birth date to calculate biorhythms" + std::string(base::lineEnd) +
           "- In options you can change the level of alerts" + std::string(base::lineEnd) +
           "- Biorhythms will update every 30 minutes";
}

void biotip(const platform::Files& files, BioState& state, AlertState& alerts, base::DateValue now) {
    loadBirth(files, state);
    if (!birthDateIsSet(state)) return;
    const base::CivilMoment present = base::civilMomentOf(now);
    computeAt(state, present.date, present.time);
    const auto average = static_cast<float>(meanOf(state.cycle));
    const auto averageNext = static_cast<float>(meanOf(state.cycleNext));
    alerts.bioTipText =
        "Biorhythms (avg.): " + percentText(average) + std::string(tipMark(trendOf(average, averageNext)));
}

void alertasbio(AlertState& alerts, BioState& state, const AlertRun& run, const AlertOutlets& outlets) {
    if (run.alertLevel == "zero" && !alerts.manualAlert) return;
    if (!birthDateIsSet(state)) return;
    const base::CivilMoment present = base::civilMomentOf(run.now);
    computeAt(state, alerts.manualAlert ? run.viewReading : present.date, present.time);
    const AlertMessages messages = messagesOf(cyclesAround(state));
    const std::string key = alertKey(run.alertLevel, messages);
    const bool opens = alertOpens(alerts, run.alertLevel, key);
    // Kept before the slide: it processes events, and a run among them must not show the same alert again.
    if (!alerts.manualAlert) alerts.lastAlertKey = key;
    if (opens) openNotification(alertTextOf(run.alertLevel, messages, state, alerts.alertText), outlets);
    alerts.alertText.clear();
}

void alertByHand(AlertState& alerts, BioState& state, const AlertRun& run, const AlertOutlets& outlets) {
    alerts.manualAlert = true;
    if (birthDateIsSet(state)) return alertasbio(alerts, state, run, outlets);
    showHelpLines(alerts, outlets);
}

bool helpIsDue(const AlertState& alerts, const BioState& state) {
    return !alerts.welcomeShown && !alerts.manualAlert && !birthDateIsSet(state);
}

void showHelpLines(AlertState& alerts, const AlertOutlets& outlets) {
    alerts.alertText = helpLines();
    alerts.welcomeShown = true;
    outlets.notification.slideUp(helpLines());
    outlets.sounds.playWav("Url.wav");
}

std::string alertHead(std::string_view alertLevel, const AlertMessages& messages, const std::string& before) {
    const HeadRule* rule = ruleOf(alertLevel);
    if (!rule) return before;
    std::string head;
    for (const Part part : rule->order) {
        if (part == Part::none) break;
        const std::string text = textOf(part, messages);
        if (!head.empty() && (rule->breakBeforeEmpty || !text.empty())) head += base::lineEnd;
        head += text;
    }
    return head;
}

std::string valueLines(const BioState& state) {
    std::string lines;
    for (std::size_t i = 0; i < cycleCount; ++i) {
        const bool rising = trendOf(state.cycle[i], state.cycleNext[i]) == shell::Trend::rising;
        if (i > 0) lines += base::lineEnd;
        lines += cycleTable[i].lineWord;
        lines += percentText(state.cycle[i]) + (rising ? " % (rising)" : " % (falling)");
    }
    return lines;
}

std::string alertKey(std::string_view alertLevel, const AlertMessages& messages) {
    const HeadRule* rule = ruleOf(alertLevel);
    const bool usesPhases = rule && std::ranges::count(rule->order, Part::phases) > 0;
    std::string key = usesPhases ? phaseMessagesJoined(messages.phases) : std::string{};
    return key.append(messages.critical).append(messages.crossing);
}

bool alertOpens(const AlertState& alerts, std::string_view alertLevel, std::string_view key) {
    if (alerts.manualAlert || alerts.startupAlert) return true;
    return key != alerts.lastAlertKey && alertLevel != levelOfLinesAlone;
}

} // namespace velmoriax::biorhythm
