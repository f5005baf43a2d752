// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/disk_files.h"
#include "program/modules.h"
#include "shell/tray_tip.h"
#include "support/desktop_fixture.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

/// What the tray tip costs, from the files on the disk: card, sign, biorhythm and moon. It is built when the pointer
/// rests on the icon, and once a minute where the panel shows the text by itself.
namespace velmoriax::program {
namespace {

struct Tip : test::DesktopFixture {
    Tip() {
        disk.replace(disk.applicationDirectory() + "\\bio.dat", "15,3,1980\r\n");
        modules.biorhythmsForShell.loadAtStart();
    }
    void TestBody() override {}
    using DesktopFixture::clock;

    QTemporaryDir user;
    desktop::DiskFiles disk{{user.path().toStdString(), VELMORIAX_DATA_DIR}};
    shell::DesktopServices onDisk = servicesOn(disk);
    Modules modules{onDisk};
};

void tip(benchmark::State& state, base::DateValue between) {
    Tip bench;
    const shell::Subsystems& subsystems = bench.modules.subsystems;
    for (auto step : state) {
        bench.clock.moment += between;
        benchmark::DoNotOptimize(
            shell::balloonText(subsystems.alerts.birthDate(), bench.clock.now(), subsystems.tipLines));
    }
    state.SetLabel("aim: under 2 ms");
}
BENCHMARK_CAPTURE(tip, ofAnotherDay, 1.0)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(tip, ofTheNextMinute, 1.0 / 1440)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace velmoriax::program
