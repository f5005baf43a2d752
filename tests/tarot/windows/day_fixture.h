// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/western_text.h"
#include "shell/windows/frm_timer.h"
#include "sky/windows/frm_moon_phase.h"
#include "sky/zodiac_tables.h"
#include "support/window_fixture.h"
#include "tarot/windows/frm_calendar.h"
#include "tarot/windows/frm_carta_dia.h"

#include <QLabel>
#include <QMouseEvent>

namespace velmoriax::test {

inline constexpr QRgb cardBack = 0xffff0000;

/// A marked pixel that lies inside the rim which a half turn leaves alone.
inline constexpr QPoint moonMark{2, 3};

/// The hub, the two windows of a day and the Moon, with pictures that tell their number in blue, on November 15, 2026.
struct DayFixture : WindowFixture {
    DayFixture() {
        files.at("\\amenores\\reverso2.jpg") = pictureBytes(cardBack);
        for (int card = 1; card <= tarot::majorCards; ++card)
            files.at("\\imagenes\\" + tarot::majorPictureFile(card)) = pictureBytes(numbered(card));
        for (int moon = 0; moon <= 30; ++moon)
            files.at("\\lunagif\\moon" + std::to_string(moon) + ".gif") = pictureBytes(numbered(100 + moon), moonMark);
        for (std::size_t sign = 0; sign < 12; ++sign) {
            const std::string name(sky::signFileNames[sign]);
            files.at("\\signos\\" + name + "_sm.gif") = pictureBytes(numbered(int(sign)));
            files.at("\\sigtxt\\" + base::lowerWestern(name) + ".txt") = "About " + name + "\r\n";
        }
        files.at("\\fechas-db\\escorpio.txt") = "10/23/2026 7:38:00-11/22/2026 7:23:00\r\n";
        files.at("\\fechas-db\\sagitario.txt") = "11/22/2026 7:23:00-12/21/2026 20:50:00\r\n";
        files.at("\\bio.dat") = "15,3,1980\r\n";
        files.at("\\horabio.dat") = "7,5\r\n";
        addDayWindows();
    }

    static QRgb numbered(int number) { return 0xff000000U + unsigned(number); }
    void addDayWindows() {
        using shell::Process;
        windows.addModule(shell::Module::cardOfDay, [](Process& p) { return new tarot::FrmCartaDia(p); });
        windows.addModule(shell::Module::anotherDay, [](Process& p) { return new tarot::FrmCalendar(p); });
        windows.addSecondary(sky::FrmMoonPhase::windowName, [](Process& p) { return new sky::FrmMoonPhase(p); });
    }
    void option(const char* key, const char* value) { record.options.setOption(key, value); }

    /// Starts the hub and gives the first module.
    shell::ModuleWindow& start() {
        hub.load();
        return *windows.loadedModule();
    }
    static void fire(QObject& owner, const char* timer) {
        auto* found = owner.findChild<QTimer*>(QString::fromUtf8(timer));
        if (!found) throw std::logic_error(std::string("no timer ") + timer);
        QMetaObject::invokeMethod(found, "timeout");
    }

    /// Lets the clock go on by seconds, with the ticks that they bring to the hub and to the card of the day.
    void run(base::CivilDate date, base::CivilTime from, int seconds) {
        for (int i = 0; i < seconds; ++i) {
            clock.moment = base::dateValueOf(date, from) + i / 86400.0;
            fire(hub, "TimeUp");
            shell::ModuleWindow& module = *windows.loadedModule();
            if (module.module() == shell::Module::cardOfDay) fire(module, "krono");
        }
    }

    static void move(QWidget& receiver, QPoint to, int times = 1) {
        for (int i = 0; i < times; ++i) {
            QMouseEvent event(QEvent::MouseMove, to, receiver.mapToGlobal(to), Qt::NoButton, Qt::NoButton,
                              Qt::NoModifier);
            QCoreApplication::sendEvent(&receiver, &event);
        }
    }
    static bool isAway(const QWidget& window) { return !window.isVisible() || window.isMinimized(); }
    shell::SecondaryWindow* moonDetails() { return windows.loaded(sky::FrmMoonPhase::windowName); }

    shell::FrmTimer hub{process};
};

} // namespace velmoriax::test
