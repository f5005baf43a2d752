// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/windows1252.h"
#include "shell/windows/frm_timer.h"
#include "sky/zodiac_tables.h"
#include "support/program_fixture.h"
#include "tarot/card_catalogue.h"

namespace velmoriax::tarot {

/// A marked pixel inside the rectangle that a half turn moves.
inline constexpr QPoint moonMark{2, 3};

/// The hub, the two windows of a day and the Moon, with pictures whose blue value is their number, on November 15,
/// 2026.
struct DayFixture : test::ProgramFixture {
    DayFixture() {
        for (int card = 1; card <= majorCards; ++card)
            files.at("\\imagenes\\" + majorPictureFile(card)) = test::pictureBytes(numbered(card));
        for (int moon = 0; moon <= 30; ++moon)
            files.at("\\lunagif\\moon" + std::to_string(moon) + ".gif") =
                test::pictureBytes(numbered(100 + moon), moonMark);
        for (std::size_t sign = 0; sign < 12; ++sign) {
            const std::string name(sky::signFileNames[sign]);
            files.at("\\signos\\" + name + "_sm.gif") = test::pictureBytes(numbered(int(sign)));
            files.at("\\sigtxt\\" + base::lowerWindows1252(name) + ".txt") = "About " + name + "\r\n";
        }
        files.at("\\fechas-db\\escorpio.txt") = "10/23/2026 7:38:00-11/22/2026 7:23:00\r\n";
        files.at("\\fechas-db\\sagitario.txt") = "11/22/2026 7:23:00-12/21/2026 20:50:00\r\n";
        files.at("\\bio.dat") = "15,3,1980\r\n";
        files.at("\\horabio.dat") = "7,5\r\n";
    }

    static QRgb numbered(int number) { return 0xff000000U + unsigned(number); }
    void option(const char* key, const char* value) { options.setOption(key, value); }

    /// Starts the hub and returns the first module.
    shell::ModuleWindow& start() {
        hub.load();
        return loadedModule();
    }

    /// Moves the clock on by seconds, with the ticks of the hub and of the card of the day.
    void run(base::CivilDate date, base::CivilTime from, int seconds) {
        for (int i = 0; i < seconds; ++i) {
            clock.moment = base::dateValueOf(date, from) + i / 86400.0;
            fire(hub, "TimeUp");
            auto& module = loadedModule();
            if (module.module().windowName == "FrmCartaDia") fire(module, "krono");
        }
    }
};

} // namespace velmoriax::tarot
