// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/windows/bio_plot.h"
#include "biorhythm/windows/biorhythm_windows.h"
#include "biorhythm/windows/frm_bio.h"
#include "support/window_fixture.h"

#include <benchmark/benchmark.h>

/// The time of a step of a held arrow, with the calculation, the chart and its painting. It has to be far below the
/// 100 ms between two steps.
namespace velmoriax::biorhythm {
namespace {

struct View : test::WindowFixture {
    explicit View(bool second) {
        files.at("\\bio.dat") = "15,3,1980\r\n";
        files.at("\\horabio.dat") = "7,45\r\n";
        files.at("\\biofinal.dat") = "0,0,0\r\n";
        files.at("\\perfiles.txt") = "Ann,March/15/1980,7:45\r\nBob,January/1/1980,12:30\r\n";
        if (second) files.at("\\opciones.ini") = "[opciones]\r\nNombre secundario=Bob\r\nDibujar secundario=1\r\n";
        addWindows(windows, context, biorhythms);
        view = &windows.touch<frmBio>();
        QCoreApplication::processEvents();
    }
    void TestBody() override {}
    using WindowFixture::files;

    BiorhythmState biorhythms;
    frmBio* view;
};

void stepOfAnArrow(benchmark::State& state) {
    View bench(state.range(0) == 2);
    bench.biorhythms.view.manualDate = true;
    for (auto step : state) {
        bench.biorhythms.view.reading =
            base::civilDateOfDay(base::dayNumber(bench.biorhythms.view.reading) % 60000 + 1000);
        bench.view->calcBio();
        QCoreApplication::processEvents();
    }
    state.SetLabel("aim: under 10 ms");
}
BENCHMARK(stepOfAnArrow)->ArgName("profiles")->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

void loadAThousandProfiles(benchmark::State& state) {
    View bench(false);
    std::string& list = bench.files.at("\\perfiles.txt");
    for (int i = 0; i < 1000; ++i) list += "Person " + std::to_string(i) + ",March/15/1980,7:45\r\n";
    for (auto step : state) bench.view->reloadProfiles();
}
BENCHMARK(loadAThousandProfiles)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace velmoriax::biorhythm
