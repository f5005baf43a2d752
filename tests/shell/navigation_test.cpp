// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/modules.h"
#include "shell/navigation.h"
#include "shell/window_position.h"
#include "support/fakes.h"

#include <set>

namespace velmoriax::shell {
namespace {

TEST(Navigation, EveryPopupAndEachWindowsOwnControlsLeadToTheFiveOthers) {
    for (const ModuleRow& row : modules) {
        const auto& [module, buttons, mainMenus, iconMenu] = navigationOf(row.module);
        std::set<Module> others, byPopup, byWindow;
        for (const ModuleRow& other : modules)
            if (other.module != module) others.insert(other.module);
        const auto take = [](std::set<Module>& targets, const auto& entries) {
            for (const auto& entry : entries)
                if (entry.command == Command::goTo) targets.insert(entry.target);
        };
        take(byPopup, iconMenu.entries);
        take(byWindow, buttons);
        for (const Menu& menu : mainMenus) take(byWindow, menu.entries);
        EXPECT_EQ(byPopup, others) << row.windowName;
        EXPECT_EQ(byWindow, others) << row.windowName;
        EXPECT_EQ(iconMenu.entries.back().command, Command::exit) << row.windowName;
        EXPECT_EQ(iconMenu.entries.back().caption, "Exit");
    }
}

TEST(Modules, TheFirstModuleByItsExactText) {
    for (const ModuleRow& row : modules) EXPECT_EQ(firstModule(row.initialText), row.module);
    for (const char* unknown : {"", "oracle", "The Card of Day", "Numbers "})
        EXPECT_EQ(firstModule(unknown), Module::cardOfDay) << unknown;
}

TEST(Modules, OnlyTheCardOfDayKnowsNoVerdadero) {
    for (const ModuleRow& row : modules) {
        EXPECT_TRUE(startsHidden(row.module, "True"));
        EXPECT_EQ(startsHidden(row.module, "Verdadero"), row.module != Module::cardOfDay) << row.windowName;
        for (const char* shown : {"", "true", "False"}) EXPECT_FALSE(startsHidden(row.module, shown));
    }
}

TEST(WindowPosition, FourZerosKeepTheDesignedPlace) {
    test::FakeFiles files;
    OptionsStore options(files);
    EXPECT_FALSE(storedPlace(options));
    files.at("\\opciones.ini") = "[Posici\xF3n]\r\nVelmoriaxcod_Left=0\r\nVelmoriaxcod_Top=5.5twips\r\n";
    EXPECT_EQ(storedPlace(options), (WindowPlace{0, 6, 0, 0}));
    files.at("\\opciones.ini") = "[Posici\xF3n]\r\nVelmoriaxcod_Left=1e9\r\nVelmoriaxcod_Width=99999999999999\r\n";
    EXPECT_EQ(storedPlace(options), (WindowPlace{1, 0, 2147483647, 0})) << "leading digits; beyond 32 bits to the end";
}

} // namespace
} // namespace velmoriax::shell
