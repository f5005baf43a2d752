// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/alert_engine.h"

#include "biorhythm/cycle_engine.h"
#include "biorhythm/profile_files.h"

#include <algorithm>

namespace velmoriax::biorhythm {

namespace {

/// A piece of an alert's head.
enum class Piece { none, phases, critical, crossing };

/// How a level builds the head. The orders differ from level to level, and the three medium levels set the bar (a line
/// break) behind their first piece even when nothing follows it.
struct HeadRule {
    std::string_view level;
    std::array<Piece, 3> order;
    bool barBeforeEmpty;
};
constexpr std::array<HeadRule, 8> headRules{{
    {"zero", {Piece::phases, Piece::critical, Piece::crossing}, false},
    {"bas1", {Piece::phases}, false},
    {"bas2", {Piece::critical}, false},
    {"bas3", {Piece::crossing}, false},
    {"med1", {Piece::critical, Piece::phases}, true},
    {"med2", {Piece::critical, Piece::crossing}, true},
    {"med3", {Piece::crossing, Piece::phases}, true},
    {"maxi", {Piece::phases, Piece::critical, Piece::crossing}, false},
}};
constexpr std::string_view levelOfLinesAlone = "solo";

/// Between the head and the value lines.
constexpr std::string_view ruledLine = "\r\n---------------------------------------------\r\n";

const HeadRule* ruleOf(std::string_view level) {
    const auto* rule = std::ranges::find(headRules, level, &HeadRule::level);
    return rule == headRules.end() ? nullptr : rule;
}

std::string textOf(Piece piece, const AlertMessages& messages) {
    switch (piece) {
    case Piece::phases:
        return joinAlertTexts(messages.phases);
    case Piece::critical:
        return std::string(messages.critical);
    case Piece::crossing:
        return std::string(messages.crossing);
    case Piece::none:
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
    return {cyclesAt(state.lived - oneHour), state.cycle, state.cycleNext};
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
    return "- Insert the birth date to calculate biorhythms" + std::string(lineBreak) +
           "- In options you can change the level of alerts" + std::string(lineBreak) +
           "- Biorhythms will update every 30 minutes";
}

void biotip(const platform::Files& files, BioState& state, AlertState& record, base::DateValue now) {
    loadBirth(files, state);
    if (!birthDateIsSet(state)) return;
    const base::CivilMoment present = base::civilMomentOf(now);
    computeAt(state, present.date, present.time);
    const auto average = static_cast<float>(meanOf(state.cycle));
    const auto averageNext = static_cast<float>(meanOf(state.cycleNext));
    record.bioTipText =
        "Biorhythms (avg.): " + percentText(average) + std::string(tipMark(trendOf(average, averageNext)));
}

void alertasbio(AlertState& record, BioState& state, std::string_view alertLevel, const AlertMoment& moment,
                const AlertOutlets& outlets) {
    if (alertLevel == "zero" && !record.manualAlert) return;
    if (!birthDateIsSet(state)) return;
    const base::CivilMoment present = base::civilMomentOf(moment.now);
    computeAt(state, record.manualAlert ? moment.viewReading : present.date, present.time);
    const AlertMessages messages = messagesOf(cyclesAround(state));
    const std::string key = alertKey(alertLevel, messages);
    const bool opens = alertOpens(record, alertLevel, key);
    // Kept before the slide, which lets events run: a run inside it is not to tell the same once more.
    if (!record.manualAlert) record.lastAlertKey = key;
    if (opens) openNotification(alertTextOf(alertLevel, messages, state, record.alertText), outlets);
    record.alertText.clear();
}

void alertByHand(AlertState& record, BioState& state, std::string_view alertLevel, const AlertMoment& moment,
                 const AlertOutlets& outlets) {
    record.manualAlert = true;
    if (birthDateIsSet(state)) return alertasbio(record, state, alertLevel, moment, outlets);
    showHelpLines(record, outlets);
}

bool helpIsDue(const AlertState& record, const BioState& state) {
    return !record.welcomeShown && !record.manualAlert && !birthDateIsSet(state);
}

void showHelpLines(AlertState& record, const AlertOutlets& outlets) {
    record.alertText = helpLines();
    record.welcomeShown = true;
    outlets.notification.slideUp(helpLines());
    outlets.sounds.playWav("Url.wav");
}

std::string alertHead(std::string_view alertLevel, const AlertMessages& messages, const std::string& before) {
    const HeadRule* rule = ruleOf(alertLevel);
    if (!rule) return before;
    std::string head;
    for (const Piece piece : rule->order) {
        if (piece == Piece::none) break;
        const std::string text = textOf(piece, messages);
        if (!head.empty() && (rule->barBeforeEmpty || !text.empty())) head += lineBreak;
        head += text;
    }
    return head;
}

std::string valueLines(const BioState& state) {
    std::string lines;
    for (std::size_t i = 0; i < cycleCount; ++i) {
        const bool rising = trendOf(state.cycle[i], state.cycleNext[i]) == shell::Trend::rising;
        if (i > 0) lines += lineBreak;
        lines += cycleTable[i].lineWord;
        lines += percentText(state.cycle[i]) + (rising ? " % (rising)" : " % (falling)");
    }
    return lines;
}

std::string alertKey(std::string_view alertLevel, const AlertMessages& messages) {
    const HeadRule* rule = ruleOf(alertLevel);
    const bool usesPhases = rule && std::ranges::count(rule->order, Piece::phases) > 0;
    std::string phaseMessagesJoined = usesPhases ? joinAlertTexts(messages.phases) : std::string{};
    return phaseMessagesJoined.append(messages.critical).append(messages.crossing);
}

bool alertOpens(const AlertState& record, std::string_view alertLevel, std::string_view key) {
    if (record.manualAlert || record.startupAlert) return true;
    return key != record.lastAlertKey && alertLevel != levelOfLinesAlone;
}

} // namespace velmoriax::biorhythm
