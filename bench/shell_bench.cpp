// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/profile_files.h"
#include "platform/qt/disk_files.h"
#include "shell/windows/frm_timer.h"
#include "shell/windows/tip_contents.h"
#include "support/window_fixture.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

/// What the tray tip costs, from the files on the disk: card, sign, biorhythm and moon. It is built while the pointer
/// rests on the icon, and once a minute where the panel shows the text by itself.
namespace velmoriax::shell {
namespace {

struct Tip : test::WindowFixture {
    Tip() {
        disk.replace(disk.applicationDirectory() + "\\bio.dat", "15,3,1980\r\n");
        biorhythm::loadBirth(disk, record.bio);
    }
    void TestBody() override {}
    using WindowFixture::clock;

    QTemporaryDir user;
    desktop::DiskFiles disk{{user.path().toStdString(), VELMORIAX_DATA_DIR}};
    DesktopServices onDisk = servicesOn(disk);
    Process whole{record, onDisk, windows};
    FrmTimer hub{whole};
};

void tip(benchmark::State& state, base::DateValue between) {
    Tip bench;
    for (auto step : state) {
        bench.clock.moment += between;
        benchmark::DoNotOptimize(balloonTextNow(bench.whole));
    }
    state.SetLabel("aim: under 2 ms");
}
BENCHMARK_CAPTURE(tip, ofAnotherDay, 1.0)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(tip, ofTheNextMinute, 1.0 / 1440)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace velmoriax::shell
