// SPDX-License-Identifier: GPL-3.0-or-later
#include "biorhythm/modules.h"

#include <array>

namespace velmoriax::biorhythm {

namespace {

using shell::Command;
using shell::commandEntry;
using shell::goEntry;
using shell::Menu;
using shell::menuSeparator;

// The modules by the names of their windows.
constexpr std::string_view toCard = "FrmCartaDia";
constexpr std::string_view toOtherDay = "FrmCalendar";
constexpr std::string_view toOracle = "Frmoracle";
constexpr std::string_view toNames = "FrmName";
constexpr std::string_view toNumbers = "frmVelmoriax";

constexpr std::array bioGo{
    goEntry("MnuNom2", "...Names", toNames),       goEntry("MnuOracul2", "...Oracle", toOracle),
    goEntry("MnuCdia2", "...Card of Day", toCard), goEntry("MnuOtroDia2", "...Another Day", toOtherDay),
    goEntry("MnuNum2", "...Numbers", toNumbers),   commandEntry("Mnubye", "Exit", Command::exit),
};
constexpr std::array bioMenus{Menu{"MnuGo", "&Go to...", bioGo}};
constexpr std::array bioIconMenu{
    commandEntry("MnuAbout", "About", Command::about),
    commandEntry("MnuOpIco", "Options", Command::options),
    commandEntry("MnuIr", "Go to...", Command::submenu),
    goEntry("MnuNom", "Names", toNames, 1),
    goEntry("MnuOracul", "Oracle", toOracle, 1),
    goEntry("MnuCdia", "Card of Day", toCard, 1),
    goEntry("MnuOtroDia", "Another Day", toOtherDay, 1),
    goEntry("MnuNum", "Numbers", toNumbers, 1),
    menuSeparator,
    commandEntry("MnuSalir", "Exit", Command::exit),
};

} // namespace

const shell::ModuleInfo biorhythmsModule{"frmBio", "Biorhythms", true, {{}, bioMenus, shell::iconMenuOf(bioIconMenu)}};

} // namespace velmoriax::biorhythm
