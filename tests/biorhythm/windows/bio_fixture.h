// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "biorhythm/windows/biorhythm_windows.h"
#include "biorhythm/windows/form_mod.h"
#include "biorhythm/windows/form_snap.h"
#include "biorhythm/windows/frm_bio.h"
#include "biorhythm/windows/frm_compa_tab.h"
#include "biorhythm/windows/frm_profiles.h"
#include "support/user_input.h"
#include "support/window_fixture.h"
#include "widgets/date_picker.h"

#include <QComboBox>
#include <QListWidget>
#include <QSpinBox>

namespace velmoriax::biorhythm {

/// The Biorhythm view on the evening of 20 June 2026, for a person born on 15 March 1980 at 7:45.
struct BioWindows : test::WindowFixture {
    BioWindows() {
        clock.set({2026, 6, 20}, {18, 30, 0});
        files.at("\\bio.dat") = "15,3,1980\r\n";
        files.at("\\horabio.dat") = "7,45\r\n";
        files.at("\\biofinal.dat") = "0,0,0\r\n";
        addWindows(windows, context, biorhythms);
    }

    frmBio& open() {
        switcher.loadFirst(frmBio::windowName);
        return *windows.loaded<frmBio>();
    }

    static void step(const QWidget& window, const char* name, int value) {
        control<QSpinBox>(window, name).setValue(value);
    }
    std::string option(const char* key) { return options.option(key); }
    std::string lines() { return files.at("\\perfiles.txt"); }

    /// Day, month and year of a date, as its three spin boxes show them.
    static std::string birthShown(const QWidget& view) {
        return textOf(view, "lblDayBirth") + ' ' + textOf(view, "lblMonthBirth") + ' ' + textOf(view, "lblYearBirth");
    }
    static std::string readingShown(const QWidget& view) {
        return textOf(view, "lblDayBio") + ' ' + textOf(view, "lblMonthBio") + ' ' + textOf(view, "lblYearBio");
    }

    BiorhythmState biorhythms;
};

} // namespace velmoriax::biorhythm
