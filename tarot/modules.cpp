// SPDX-License-Identifier: GPL-3.0-or-later
#include "tarot/modules.h"

#include <array>

namespace velmoriax::tarot {

namespace {

using shell::ButtonRow;
using shell::checkEntry;
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
constexpr std::string_view toBio = "frmBio";

// ---- FrmCartaDia

constexpr std::array cardButtons{
    ButtonRow{"ARButtonBio", Command::goTo, toBio},
    ButtonRow{"ARButtonNom", Command::goTo, toNames},
    ButtonRow{"ARButtonNum", Command::goTo, toNumbers},
    ButtonRow{"ARButtonOra", Command::goTo, toOracle},
    ButtonRow{"ARButtonOtro", Command::goTo, toOtherDay},
    ButtonRow{"PicMediaBio", Command::goTo, toBio},
    ButtonRow{"CmdSalir", Command::hide},
    ButtonRow{"CommandInfo", Command::help},
};
constexpr std::array cardIconMenu{
    commandEntry("MnuAbout", "About...", Command::about),
    commandEntry("MnuOpIco", "Options", Command::options),
    commandEntry("MnuIr", "Go to...", Command::submenu),
    goEntry("MnuBio", "Biorhythms", toBio, 1),
    goEntry("MnuNom", "Names", toNames, 1),
    goEntry("MnuOracul", "Oracle", toOracle, 1),
    goEntry("MnuNum", "Numbers", toNumbers, 1),
    goEntry("MnuOtro", "Another Day", toOtherDay, 1),
    menuSeparator,
    commandEntry("MnuSalir", "Exit", Command::exit),
};

// ---- FrmCalendar

constexpr std::array calendarButtons{
    ButtonRow{"ARButtonHoy", Command::goTo, toCard},   ButtonRow{"ARButtonNom", Command::goTo, toNames},
    ButtonRow{"ARButtonBio", Command::goTo, toBio},    ButtonRow{"ARButtonNum", Command::goTo, toNumbers},
    ButtonRow{"ARButtonOra", Command::goTo, toOracle}, ButtonRow{"CmdSalir", Command::hide},
};
constexpr std::array calendarIconMenu{
    commandEntry("MnuAbout", "About...", Command::about),
    commandEntry("MnuOpIco", "Options", Command::options),
    commandEntry("MnuIr", "Ir a...", Command::submenu),
    goEntry("MnuBio", "Biorhythms", toBio, 1),
    goEntry("MnuNom", "Names", toNames, 1),
    goEntry("MnuOracul", "Oracle", toOracle, 1),
    goEntry("MnuCdia", "Card of Day", toCard, 1),
    goEntry("MnuNum", "Numbers", toNumbers, 1),
    menuSeparator,
    commandEntry("MnuSal", "Exit", Command::exit),
};

// ---- frmVelmoriax

constexpr std::array numbersFile{
    commandEntry("MnuShowResults", "Show results", Command::own),
    checkEntry("MnuRegResult", "Save results"),
    commandEntry("MnuDelResults", "Delete results", Command::own),
    commandEntry("mnuSalir", "Exit", Command::exit),
};
constexpr std::array numbersView{
    goEntry("MnuBio", "Biorhythms", toBio),
    goEntry("MnuOracle", "Oracle", toOracle),
    goEntry("MnuCartDia", "The Card of Day", toCard),
    goEntry("MnuOtroDia", "Another Day", toOtherDay),
    goEntry("MnuNom", "Names", toNames),
};
constexpr std::array numbersHelp{
    commandEntry("Mnucont", "Contents of Help", Command::help),
    commandEntry("mnuAcercaDe", "About...", Command::about),
};
constexpr std::array numbersMenus{
    Menu{"MnuArchivo", "&File", numbersFile},
    Menu{"MnuVer", "&View", numbersView},
    Menu{"MnuAyuda", "&Help", numbersHelp},
};
constexpr std::array numbersIconMenu{
    commandEntry("MnuAbout", "About", Command::about),
    commandEntry("MnuOpIco", "Options", Command::options),
    commandEntry("MnuIr", "Go to...", Command::submenu),
    goEntry("MnuBioIco", "Biorhythms", toBio, 1),
    goEntry("MnuNomIco", "Names", toNames, 1),
    goEntry("MnuCdia", "Card of Day", toCard, 1),
    goEntry("MnuOracul", "Oracle", toOracle, 1),
    goEntry("MnuOtro", "Another Day", toOtherDay, 1),
    menuSeparator,
    commandEntry("MnuSal", "Exit", Command::exit),
};

// ---- FrmName

constexpr std::array namesFile{
    commandEntry("MnuShowResults", "Show results", Command::own),
    checkEntry("MnuRecResults", "Save results"),
    commandEntry("MnuDelResults", "Delete results", Command::own),
    commandEntry("MnuSalir", "Exit", Command::exit),
};
constexpr std::array namesView{
    goEntry("MnuBio", "Biorhythms", toBio),   goEntry("MnuCarDia", "The Card of Day", toCard),
    goEntry("MnuNum", "Numbers", toNumbers),  goEntry("MnuOtro", "Another Day", toOtherDay),
    goEntry("MnuOracle", "Oracle", toOracle),
};
constexpr std::array namesHelp{
    commandEntry("Mnucont", "Contents of Help", Command::help),
    commandEntry("MnuAbout", "About...", Command::about),
};
constexpr std::array namesMenus{
    Menu{"MnuArchivo", "&File", namesFile},
    Menu{"MnuVer", "&View", namesView},
    Menu{"MnuAyuda", "&Help", namesHelp},
};
constexpr std::array namesIconMenu{
    commandEntry("MnuAboutIco", "About", Command::about),
    commandEntry("MnuOp", "Options", Command::options),
    commandEntry("MnuIr", "Go to...", Command::submenu),
    goEntry("MnuBioIco", "Biorhythms", toBio, 1),
    goEntry("MnuDia", "The Card of Day", toCard, 1),
    goEntry("MnuNumer", "Numbers", toNumbers, 1),
    goEntry("MnuOtroDia", "Another Day", toOtherDay, 1),
    goEntry("MnuOracleIco", "Oracle", toOracle, 1),
    menuSeparator,
    commandEntry("MnuSal", "Exit", Command::exit),
};

// ---- Frmoracle

constexpr std::array oracleFile{
    commandEntry("MnuShowResults", "Show results", Command::own),
    checkEntry("MnuRegResult", "Save results"),
    commandEntry("MnuDelResults", "Delete results", Command::own),
    commandEntry("MnuSalir", "Exit", Command::exit),
};
constexpr std::array oracleView{
    goEntry("MnuBio", "Biorhythms", toBio),  goEntry("MnuCdia", "The Card of Day", toCard),
    goEntry("MnuNum", "Numbers", toNumbers), goEntry("MnuOtro", "Another Day", toOtherDay),
    goEntry("MnuNom", "Names", toNames),
};
constexpr std::array oracleSettings{
    commandEntry("MnuOp", "Options", Command::options),
    commandEntry("MnuEliSound", "Choose a midi file", Command::own),
};
constexpr std::array oracleHelp{
    commandEntry("Mnucont", "Contents of Help", Command::help),
    commandEntry("MnuAcerca", "About...", Command::about),
};
constexpr std::array oracleMenus{
    Menu{"MnuArchivo", "&File", oracleFile},
    Menu{"MnuVer", "&View", oracleView},
    Menu{"MnuTools", "&Settings", oracleSettings},
    Menu{"MnuAyuda", "&Help", oracleHelp},
};
constexpr std::array oracleIconMenu{
    commandEntry("MnuAbout", "About", Command::about),
    commandEntry("MnuOpIco", "Options", Command::options),
    commandEntry("MnuIr", "Go to...", Command::submenu),
    goEntry("MnuBioIco", "Biorhythms", toBio, 1),
    goEntry("MnuNomIco", "Names", toNames, 1),
    goEntry("MnuHoy", "The Card of Day", toCard, 1),
    goEntry("MnuNumer", "Numbers", toNumbers, 1),
    goEntry("MnuOtroDia", "Another Day", toOtherDay, 1),
    menuSeparator,
    commandEntry("MnuSal", "Exit", Command::exit),
};

} // namespace

const shell::ModuleInfo cardOfDayModule{
    toCard, "The Card of Day...", false, {cardButtons, {}, shell::iconMenuOf(cardIconMenu)}};
const shell::ModuleInfo anotherDayModule{
    toOtherDay, "Another Day...", true, {calendarButtons, {}, shell::iconMenuOf(calendarIconMenu)}};
const shell::ModuleInfo oracleModule{toOracle, "Oracle", true, {{}, oracleMenus, shell::iconMenuOf(oracleIconMenu)}};
const shell::ModuleInfo namesModule{toNames, "Names", true, {{}, namesMenus, shell::iconMenuOf(namesIconMenu)}};
const shell::ModuleInfo numbersModule{
    toNumbers, "Numbers", true, {{}, numbersMenus, shell::iconMenuOf(numbersIconMenu)}};

} // namespace velmoriax::tarot
