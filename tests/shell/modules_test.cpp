// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/modules.h"
#include "shell/window_position.h"
#include "support/fakes.h"

namespace velmoriax::shell {
namespace {

const ModuleInfo day{"FrmDay", "The Day...", false};
const ModuleInfo night{"FrmNight", "Night"};
const ModuleList modules{&day, &night};

TEST(Modules, TheFirstModuleByItsExactText) {
    EXPECT_EQ(&firstModule(modules, "Night"), &night);
    for (const char* unknown : {"", "night", "The Day", "Night "})
        EXPECT_EQ(&firstModule(modules, unknown), &day) << unknown;
}

TEST(Modules, OldFilesSayVerdadero) {
    for (const ModuleInfo* module : modules) {
        EXPECT_TRUE(startsHidden(*module, "True"));
        EXPECT_EQ(startsHidden(*module, "Verdadero"), module == &night);
        for (const char* shown : {"", "true", "False"}) EXPECT_FALSE(startsHidden(*module, shown));
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
