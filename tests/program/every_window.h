// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/windows/window_registry.h"
#include "support/program_fixture.h"
#include "support/supplied_files.h"

#include <QListWidget>

#include <algorithm>

namespace velmoriax::test {

/// The program with any of its windows open, so that a new window is tested with the others.
class EveryWindow : public ProgramFixture {
protected:
    EveryWindow() {
        files.contents = suppliedFiles(files.directory);
        files.at("\\bio.dat") = "15,3,1980\r\n";
        files.at("\\perfiles.txt") = "Ann,March/15/1980,7:45\r\nBob,January/1/1980,12:30\r\n";
        tray.arrive();
    }
    void start() {
        options.readAtStart();
        modules.biorhythmsForShell.loadAtStart();
        switcher.loadFirst("FrmCartaDia");
    }

    /// The window, shown; what is no module over the biorhythms, with a profile chosen for those that need one.
    QWidget& open(const std::string& name) {
        const bool isModule = std::ranges::count(windows.modules(), name, &shell::ModuleInfo::windowName) > 0;
        switcher.handOver(isModule ? name : "frmBio");
        if (!isModule) windows.touch("FrmProfiles").widget().findChild<QListWidget*>()->setCurrentRow(0);
        windows.touch(name).showNormalState();
        windows.loaded(name)->widget().activateWindow();
        // Each area that scrolls passes a new size on by an event.
        for (int i = 0; i < 5; ++i) QCoreApplication::processEvents();
        return windows.loaded(name)->widget();
    }
    void close(const std::string& name) {
        switcher.handOver(name == "FrmName" ? "FrmCartaDia" : "FrmName");
        for (const std::string& each : windows.names())
            if (windows.loaded(each) != windows.loadedModule()) windows.unload(each);
        QCoreApplication::processEvents();
    }
};

} // namespace velmoriax::test
