// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/date_text.h"
#include "base/windows1252.h"
#include "sky/ingress_search.h"
#include "sky/moon_engine.h"
#include "sky/moon_illumination.h"
#include "sky/moon_texts.h"
#include "sky/zodiac_tables.h"
#include "support/fakes.h"

#include <benchmark/benchmark.h>

namespace {

using namespace velmoriax;

const base::DateValue noon = base::dateValueOf({2026, 11, 15}, {12, 0, 0});
constexpr int firstYear = 1900;
constexpr int years = 200;

/// One phase instant: the unit that all of the Moon is made of.
void phaseInstant(benchmark::State& state) {
    std::int32_t lunation = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(sky::moonPhaseJulianDay(lunation, sky::MoonPhase::lastQuarter));
        lunation = (lunation + 1) % 2000;
    }
}
BENCHMARK(phaseInstant);

/// What the moon window works out each second.
void moonWindowRefresh(benchmark::State& state) {
    test::FakeEvents events;
    const sky::MoonEngine engine(events);
    base::DateValue moment = noon;
    for (auto _ : state) {
        benchmark::DoNotOptimize(sky::refreshMoonDetails(engine, {moment, sky::moonIllumination(moment)}, false));
        moment += 0.37;
    }
    state.SetLabel("aim: under 100 us");
}
BENCHMARK(moonWindowRefresh);

/// A table of one sign: a stay of a day a year, so that no moment of the other days is found.
std::string table(int month) {
    std::string text;
    for (int year = firstYear; year < firstYear + years; ++year)
        text += base::generalText(base::dateValueOf({year, month, 10}, {12, 33, 20})) + "-" +
                base::generalText(base::dateValueOf({year, month, 11}, {11, 37, 40})) + "\r\n";
    return text;
}

/// The longest search: eleven tables without a match, and a match in the last line of the twelfth.
void lastSignSearch(benchmark::State& state) {
    test::FakeFiles files;
    int month = 0;
    for (const std::string_view name : sky::signFileNames)
        files.at("\\fechas-db\\" + base::lowerWindows1252(name) + ".txt") = table(++month);
    const base::DateValue moment = base::dateValueOf({firstYear + years - 1, 12, 11}, {0, 0, 0});
    if (!sky::findSignStay(files, moment)) state.SkipWithError("not found");
    for (auto _ : state) benchmark::DoNotOptimize(sky::findSignStay(files, moment));
    state.SetLabel("aim: under 1 ms");
}
BENCHMARK(lastSignSearch);

} // namespace
