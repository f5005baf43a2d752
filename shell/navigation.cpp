// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/navigation.h"

#include <algorithm>
#include <array>

namespace velmoriax::shell {

namespace {

constexpr auto toCard = Module::cardOfDay;
constexpr auto toOtherDay = Module::anotherDay;
constexpr auto toOracle = Module::oracle;
constexpr auto toNames = Module::names;
constexpr auto toNumbers = Module::numbers;
constexpr auto toBio = Module::biorhythms;

constexpr MenuEntry go(std::string_view name, std::string_view caption, Module target, int depth = 0) {
    return {name, caption, Command::goTo, target, depth};
}

constexpr MenuEntry entry(std::string_view name, std::string_view caption, Command command) {
    return {name, caption, command};
}

constexpr MenuEntry separator{"", "", Command::separator};

constexpr MenuEntry checkEntry(std::string_view name, std::string_view caption) {
    return {name, caption, Command::own, Module::cardOfDay, 0, true};
}

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
    entry("MnuAbout", "About...", Command::about),
    entry("MnuOpIco", "Options", Command::options),
    entry("MnuIr", "Go to...", Command::submenu),
    go("MnuBio", "Biorhythms", toBio, 1),
    go("MnuNom", "Names", toNames, 1),
    go("MnuOracul", "Oracle", toOracle, 1),
    go("MnuNum", "Numbers", toNumbers, 1),
    go("MnuOtro", "Another Day", toOtherDay, 1),
    separator,
    entry("MnuSalir", "Exit", Command::exit),
};

// ---- FrmCalendar

constexpr std::array calendarButtons{
    ButtonRow{"ARButtonHoy", Command::goTo, toCard},   ButtonRow{"ARButtonNom", Command::goTo, toNames},
    ButtonRow{"ARButtonBio", Command::goTo, toBio},    ButtonRow{"ARButtonNum", Command::goTo, toNumbers},
    ButtonRow{"ARButtonOra", Command::goTo, toOracle}, ButtonRow{"CmdSalir", Command::hide},
};
constexpr std::array calendarIconMenu{
    entry("MnuAbout", "About...", Command::about),
    entry("MnuOpIco", "Options", Command::options),
    entry("MnuIr", "Ir a...", Command::submenu),
    go("MnuBio", "Biorhythms", toBio, 1),
    go("MnuNom", "Names", toNames, 1),
    go("MnuOracul", "Oracle", toOracle, 1),
    go("MnuCdia", "Card of Day", toCard, 1),
    go("MnuNum", "Numbers", toNumbers, 1),
    separator,
    entry("MnuSal", "Exit", Command::exit),
};

// ---- frmVelmoriax

constexpr std::array numbersFile{
    entry("MnuShowResults", "Show results", Command::own),
    checkEntry("MnuRegResult", "Save results"),
    entry("MnuDelResults", "Delete results", Command::own),
    entry("mnuSalir", "Exit", Command::exit),
};
constexpr std::array numbersView{
    go("MnuBio", "Biorhythms", toBio),
    go("MnuOracle", "Oracle", toOracle),
    go("MnuCartDia", "The Card of Day", toCard),
    go("MnuOtroDia", "Another Day", toOtherDay),
    go("MnuNom", "Names", toNames),
};
constexpr std::array numbersHelp{
    entry("Mnucont", "Contents of Help", Command::help),
    entry("mnuAcercaDe", "About...", Command::about),
};
constexpr std::array numbersMenus{
    Menu{"MnuArchivo", "&File", numbersFile},
    Menu{"MnuVer", "&View", numbersView},
    Menu{"MnuAyuda", "&Help", numbersHelp},
};
constexpr std::array numbersIconMenu{
    entry("MnuAbout", "About", Command::about),
    entry("MnuOpIco", "Options", Command::options),
    entry("MnuIr", "Go to...", Command::submenu),
    go("MnuBioIco", "Biorhythms", toBio, 1),
    go("MnuNomIco", "Names", toNames, 1),
    go("MnuCdia", "Card of Day", toCard, 1),
    go("MnuOracul", "Oracle", toOracle, 1),
    go("MnuOtro", "Another Day", toOtherDay, 1),
    separator,
    entry("MnuSal", "Exit", Command::exit),
};

// ---- FrmName

constexpr std::array namesFile{
    entry("MnuShowResults", "Show results", Command::own),
    checkEntry("MnuRecResults", "Save results"),
    entry("MnuDelResults", "Delete results", Command::own),
    entry("MnuSalir", "Exit", Command::exit),
};
constexpr std::array namesView{
    go("MnuBio", "Biorhythms", toBio),   go("MnuCarDia", "The Card of Day", toCard),
    go("MnuNum", "Numbers", toNumbers),  go("MnuOtro", "Another Day", toOtherDay),
    go("MnuOracle", "Oracle", toOracle),
};
constexpr std::array namesHelp{
    entry("Mnucont", "Contents of Help", Command::help),
    entry("MnuAbout", "About...", Command::about),
};
constexpr std::array namesMenus{
    Menu{"MnuArchivo", "&File", namesFile},
    Menu{"MnuVer", "&View", namesView},
    Menu{"MnuAyuda", "&Help", namesHelp},
};
constexpr std::array namesIconMenu{
    entry("MnuAboutIco", "About", Command::about),
    entry("MnuOp", "Options", Command::options),
    entry("MnuIr", "Go to...", Command::submenu),
    go("MnuBioIco", "Biorhythms", toBio, 1),
    go("MnuDia", "The Card of Day", toCard, 1),
    go("MnuNumer", "Numbers", toNumbers, 1),
    go("MnuOtroDia", "Another Day", toOtherDay, 1),
    go("MnuOracleIco", "Oracle", toOracle, 1),
    separator,
    entry("MnuSal", "Exit", Command::exit),
};

// ---- Frmoracle

constexpr std::array oracleFile{
    entry("MnuShowResults", "Show results", Command::own),
    checkEntry("MnuRegResult", "Save results"),
    entry("MnuDelResults", "Delete results", Command::own),
    entry("MnuSalir", "Exit", Command::exit),
};
constexpr std::array oracleView{
    go("MnuBio", "Biorhythms", toBio),  go("MnuCdia", "The Card of Day", toCard),
    go("MnuNum", "Numbers", toNumbers), go("MnuOtro", "Another Day", toOtherDay),
    go("MnuNom", "Names", toNames),
};
constexpr std::array oracleSettings{
    entry("MnuOp", "Options", Command::options),
    entry("MnuEliSound", "Choose a midi file", Command::own),
};
constexpr std::array oracleHelp{
    entry("Mnucont", "Contents of Help", Command::help),
    entry("MnuAcerca", "About...", Command::about),
};
constexpr std::array oracleMenus{
    Menu{"MnuArchivo", "&File", oracleFile},
    Menu{"MnuVer", "&View", oracleView},
    Menu{"MnuTools", "&Settings", oracleSettings},
    Menu{"MnuAyuda", "&Help", oracleHelp},
};
constexpr std::array oracleIconMenu{
    entry("MnuAbout", "About", Command::about),
    entry("MnuOpIco", "Options", Command::options),
    entry("MnuIr", "Go to...", Command::submenu),
    go("MnuBioIco", "Biorhythms", toBio, 1),
    go("MnuNomIco", "Names", toNames, 1),
    go("MnuHoy", "The Card of Day", toCard, 1),
    go("MnuNumer", "Numbers", toNumbers, 1),
    go("MnuOtroDia", "Another Day", toOtherDay, 1),
    separator,
    entry("MnuSal", "Exit", Command::exit),
};

// ---- frmBio

constexpr std::array bioGo{
    go("MnuNom2", "...Names", toNames),       go("MnuOracul2", "...Oracle", toOracle),
    go("MnuCdia2", "...Card of Day", toCard), go("MnuOtroDia2", "...Another Day", toOtherDay),
    go("MnuNum2", "...Numbers", toNumbers),   entry("Mnubye", "Exit", Command::exit),
};
constexpr std::array bioMenus{Menu{"MnuGo", "&Go to...", bioGo}};
constexpr std::array bioIconMenu{
    entry("MnuAbout", "About", Command::about),
    entry("MnuOpIco", "Options", Command::options),
    entry("MnuIr", "Go to...", Command::submenu),
    go("MnuNom", "Names", toNames, 1),
    go("MnuOracul", "Oracle", toOracle, 1),
    go("MnuCdia", "Card of Day", toCard, 1),
    go("MnuOtroDia", "Another Day", toOtherDay, 1),
    go("MnuNum", "Numbers", toNumbers, 1),
    separator,
    entry("MnuSalir", "Exit", Command::exit),
};

constexpr Menu iconMenu(std::span<const MenuEntry> entries) {
    return {"MnuIcon", "", entries};
}

const std::array<ModuleNavigation, 6> table{{
    {Module::cardOfDay, cardButtons, {}, iconMenu(cardIconMenu)},
    {Module::anotherDay, calendarButtons, {}, iconMenu(calendarIconMenu)},
    {Module::oracle, {}, oracleMenus, iconMenu(oracleIconMenu)},
    {Module::names, {}, namesMenus, iconMenu(namesIconMenu)},
    {Module::numbers, {}, numbersMenus, iconMenu(numbersIconMenu)},
    {Module::biorhythms, {}, bioMenus, iconMenu(bioIconMenu)},
}};

} // namespace

const ModuleNavigation& navigationOf(Module module) {
    return *std::ranges::find(table, module, &ModuleNavigation::module);
}

} // namespace velmoriax::shell
