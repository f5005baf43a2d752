// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/alert_engine.h"
#include "biorhythm/bio_chart.h"
#include "biorhythm/bio_view.h"

#include <benchmark/benchmark.h>

// A step of a held arrow, one calculation with its chart, has 100 ms. An alert runs each half hour.
namespace velmoriax::biorhythm {

namespace {

constexpr base::CivilMoment birth{{1980, 3, 15}, {7, 45, 0}};

struct SilentNotification : platform::Notification {
    void slideUp(const std::string& text) override { benchmark::DoNotOptimize(text.size()); }
    void show(const std::string&) override {}
    void slideDown() override {}
    void close() override {}
    bool isOpen() const override { return false; }
};
struct SilentSounds : platform::Sounds {
    void playWav(const std::string&) override {}
};

/// A half-hour later each round, so that no two rounds compute the same.
base::DateValue laterMoment() {
    static int halfHours = 0;
    return base::dayNumber({2026, 6, 20}) + (++halfHours % 700000) / 48.0;
}

void calculation(benchmark::State& bench) {
    BioState state;
    BioViewState view{false, birth, {}, {2030, 1, 1}, 0};
    for ([[maybe_unused]] const auto round : bench) benchmark::DoNotOptimize(calcBio(state, view, laterMoment()));
    bench.SetLabel("aim: under 5 us");
}
BENCHMARK(calculation);

void calculationWithChart(benchmark::State& bench) {
    BioState state;
    BioViewState view{false, birth, {}, {2030, 1, 1}, 0};
    SecondProfile second{
        .profileSecondName = "Bea", .drawSecondFlag = true, .secondDate = {1990, 5, 1}, .secondTime = {8, 0, 0}};
    const auto profiles = static_cast<std::size_t>(bench.range(0));
    for ([[maybe_unused]] const auto round : bench) {
        const base::DateValue now = laterMoment();
        benchmark::DoNotOptimize(calcBio(state, view, now));
        benchmark::DoNotOptimize(mschart(state.lived, second, profiles, {view.reading, base::civilTimeOf(now)}));
    }
}
BENCHMARK(calculationWithChart)->Arg(1)->Arg(2)->ArgName("profiles");

/// By hand the text is built and shown each time; on a tick only when something changed.
void alert(benchmark::State& bench) {
    SilentNotification notification;
    SilentSounds sounds;
    BioState state;
    setBirthDate(state, birth.date);
    AlertState alerts;
    alerts.manualAlert = bench.range(0) != 0;
    for ([[maybe_unused]] const auto round : bench) {
        const base::DateValue now = laterMoment();
        alertasbio(alerts, state, {"maxi", now, base::civilDateOf(now)}, {notification, sounds});
    }
    bench.SetLabel("aim: under 20 us");
}
BENCHMARK(alert)->Arg(0)->Arg(1)->ArgName("byHand");

} // namespace

} // namespace velmoriax::biorhythm
