// SPDX-License-Identifier: GPL-3.0-or-later
// Days that pass: the ticks of the hub and of the windows, alerts, tips, midnight cards and random hand-overs, on the
// supplied data. What is allocated must not grow. SOAK_DAYS says how many days (3), SOAK_SEED where the chance begins.
#include "shell/tray_tip.h"
#include "sky/windows/frm_moon_phase.h"
#include "support/program_fixture.h"

#include <QPixmapCache>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <malloc.h>
#include <random>

extern "C" [[gnu::weak]] std::size_t __sanitizer_get_current_allocated_bytes();

namespace velmoriax {
namespace {

namespace fs = std::filesystem;

/// What the toolkit's own caches of fonts and drawn icons take until they are full, and what they keep of each day.
constexpr std::size_t cachesOfToolkit = 1U << 20U;
constexpr std::size_t keptOfADay = 4U << 10U;

std::size_t allocated() {
    return __sanitizer_get_current_allocated_bytes ? __sanitizer_get_current_allocated_bytes() : mallinfo2().uordblks;
}

int numberOf(const char* variable, int otherwise) {
    const char* value = std::getenv(variable);
    return value ? std::atoi(value) : otherwise;
}

struct Soak : test::ProgramFixture {
    Soak() {
        const fs::path data = VELMORIAX_DATA_DIR;
        for (const auto& entry : fs::recursive_directory_iterator(data)) {
            if (!entry.is_regular_file()) continue;
            std::string name = "\\" + entry.path().lexically_relative(data).string();
            std::ranges::replace(name, '/', '\\');
            files.at(name) = test::bytesOf(entry.path());
        }
        files.at("\\bio.dat") = "15,3,1980\r\n";
        files.at("\\perfiles.txt") = "Ann,March/15/1980,7:45\r\nBob,January/1/1980,12:30\r\n";
    }

    int chance(int below) { return std::uniform_int_distribution(0, below - 1)(random_); }

    static void fire(QObject& owner, const char* timer) {
        if (auto* found = owner.findChild<QTimer*>(QString::fromUtf8(timer)))
            QMetaObject::invokeMethod(found, "timeout");
    }
    void second() {
        clock.moment += 1 / 86400.0;
        fire(hub, "TimeUp");
        for (const char* timer : {"krono", "TimerMidi"}) fire(loadedModule(), timer);
    }
    void minute() {
        clock.moment += 59 / 86400.0;
        second();
        for (const char* timer : {"TimerBio", "TimerBio"}) fire(hub, timer);
        for (const char* timer : {"TimerPlus", "TimerBio", "TimerBio"}) fire(loadedModule(), timer);
    }

    void goTo(std::string_view module) {
        if (module != loadedModule().module().windowName) switcher.handOver(module);
        QTest::qWait(0);
    }

    void somethingElse() {
        goTo(windows.modules()[static_cast<std::size_t>(chance(6))]->windowName);
        shell::balloonText({1980, 3, 15}, clock.now(), modules.subsystems.tipLines);
        fire(windows.touch<sky::FrmMoonPhase>(), "Timer1");
        windows.unload(sky::FrmMoonPhase::windowName);
        options.holders.hemisferio = chance(2) == 0 ? "Norte" : "Sur";
        options.holders.muteCod = chance(3) == 0 ? "muted" : "nomuted";
        options.holders.tipocartas =
            std::array{"marsellaone", "marsellaclass", "oldones"}[static_cast<std::size_t>(chance(3))];
        if (chance(4) == 0)
            loadedModule().hideToTray();
        else
            loadedModule().returnFromTray();
    }

    /// From noon to noon, every second of it around midnight.
    void day() {
        for (int minutes = 0; minutes < 1440; ++minutes) {
            if (minutes == 719)
                for (int seconds = 0; seconds < 60; ++seconds) second();
            else
                minute();
            if (chance(180) == 0) somethingElse();
            if (minutes % 60 == 0) QTest::qWait(0);
        }
        goTo("FrmCartaDia");   // each day is measured with the same window
        QPixmapCache::clear(); // of drawn icons, which empties itself by a clock that runs slower than the days here
        // What the fakes have noted of it is no growth of the program's.
        sounds.played.clear();
        songs.starts.clear();
        notification.texts.clear();
        boxes.shown.clear();
        opener.opened.clear();
    }

    std::mt19937 random_{static_cast<unsigned>(numberOf("SOAK_SEED", 1))};
};

TEST_F(Soak, DaysPassWithoutGrowth) {
    const int days = numberOf("SOAK_DAYS", 3);
    clock.set({2026, 1, 1}, {12, 0, 0});
    hub.load();
    std::size_t early = 0;
    for (int n = 1; n <= days; ++n) {
        ASSERT_NO_FATAL_FAILURE(day());
        if (n == (days + 3) / 4) early = allocated();
        if (n % ((days + 7) / 8) == 0) std::printf("day %d: %zu KB allocated\n", n, allocated() / 1024);
    }
    EXPECT_LT(allocated(), early + cachesOfToolkit + static_cast<std::size_t>(days) * keptOfADay);
}

} // namespace
} // namespace velmoriax
