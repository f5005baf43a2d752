// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/program_fixture.h"
#include "support/supplied_files.h"

#include <set>

namespace velmoriax::program {
namespace {

using shell::Command;
using shell::ModuleInfo;
using Names = std::set<std::string_view>;

struct Navigation : test::ProgramFixture {
    Names others(const ModuleInfo& module) const {
        Names names;
        for (const ModuleInfo* each : windows.modules())
            if (each != &module) names.insert(each->windowName);
        return names;
    }
    /// The entry of the loaded module's popup that leads to another one; null when there is none.
    QAction* popupEntryTo(const ModuleInfo& target) const {
        for (const shell::MenuEntry& entry : loadedModule().module().navigation.iconMenu.entries)
            if (entry.target == target.windowName) return loadedModule().menuAction(entry.name);
        return loadedModule().menuAction(target.windowName); // one that the table does not list
    }
    template<typename Entries>
    static void addTargets(Names& targets, const Entries& entries) {
        for (const auto& entry : entries)
            if (entry.command == Command::goTo) targets.insert(entry.target);
    }
};

TEST_F(Navigation, EveryPopupAndEachWindowsOwnControlsLeadToTheFiveOthers) {
    for (const ModuleInfo* module : windows.modules()) {
        const auto& [buttons, mainMenus, iconMenu] = module->navigation;
        Names byPopup, byWindow;
        addTargets(byPopup, iconMenu.entries);
        addTargets(byWindow, buttons);
        for (const shell::Menu& menu : mainMenus) addTargets(byWindow, menu.entries);
        EXPECT_EQ(byPopup, others(*module)) << module->windowName;
        EXPECT_EQ(byWindow, others(*module)) << module->windowName;
        EXPECT_EQ(iconMenu.entries.back().command, Command::exit) << module->windowName;
        EXPECT_EQ(iconMenu.entries.back().caption, "Exit");
    }
}

TEST_F(Navigation, EachEntryOfAPopupHandsOverToItsModule) {
    files.contents = test::suppliedFiles(files.directory);
    modules.biorhythmsForShell.loadAtStart();
    options.readAtStart();
    for (const ModuleInfo* source : windows.modules())
        for (const ModuleInfo* target : windows.modules()) {
            if (source == target) continue;
            switcher.stage() == shell::Stage::empty ? switcher.loadFirst(source->windowName)
                                                    : switcher.handOver(source->windowName);
            QAction* entry = popupEntryTo(*target);
            ASSERT_TRUE(entry) << source->windowName << " to " << target->windowName;
            entry->trigger();
            EXPECT_EQ(&loadedModule().module(), target) << source->windowName;
            EXPECT_TRUE(loadedModule().isVisible());
        }
}

TEST_F(Navigation, TheOptionsListNamesTheModulesInTheirOrder) {
    const std::vector<std::string_view> names{"The Card of Day...", "Another Day...", "Oracle", "Names", "Numbers",
                                              "Biorhythms"};
    std::vector<std::string_view> listed;
    for (const ModuleInfo* module : windows.modules()) listed.push_back(module->initialText);
    EXPECT_EQ(listed, names);
    EXPECT_EQ(firstModule(windows.modules(), "").windowName, "FrmCartaDia");
}

TEST_F(Navigation, OnlyTheCardOfDayKnowsNoVerdadero) {
    for (const ModuleInfo* module : windows.modules())
        EXPECT_EQ(startsHidden(*module, "Verdadero"), module->windowName != "FrmCartaDia") << module->windowName;
}

} // namespace
} // namespace velmoriax::program
