// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>

/// The options: their keys, the words that they know, the holders that keep what was read last, and what each module
/// reads when it loads.
namespace velmoriax::shell {

inline constexpr std::string_view optionsSection = "opciones";
inline constexpr std::string_view positionSection = "Posición";

namespace key {
inline constexpr std::string_view moduloInicial = "Módulo Inicial";
inline constexpr std::string_view iniciarMinimizado = "Iniciar Minimizado";
inline constexpr std::string_view iniciarConWindows = "Iniciar con Windows";
inline constexpr std::string_view minimizar = "Minimizar";
inline constexpr std::string_view tipocartas = "tipocartas";
inline constexpr std::string_view nivelAlertas = "Nivel Alertas";
inline constexpr std::string_view desactivarTooltips = "Desactivar Tooltips";
inline constexpr std::string_view estiloTooltips = "Estilo Tooltips";
inline constexpr std::string_view modoSilencioso = "Modo Silencioso";
inline constexpr std::string_view muteCod = "Mute cod";
inline constexpr std::string_view backgroundSound = "Background Sound";
inline constexpr std::string_view hemisferio = "Hemisferio";
inline constexpr std::string_view tirada = "Tirada";
inline constexpr std::string_view logResNumbers = "LogResNumbers";
inline constexpr std::string_view logResNames = "LogResNames";
inline constexpr std::string_view logResOracle = "LogResOracle";
inline constexpr std::string_view soundAmbient = "SoundAmbient";
inline constexpr std::string_view songAmbient = "SongAmbient";
inline constexpr std::string_view perfilBio = "Perfil-Bio";
inline constexpr std::string_view dibujarSecundario = "Dibujar secundario";
inline constexpr std::string_view nombreSecundario = "Nombre secundario";
inline constexpr std::string_view positionLeft = "Velmoriaxcod_Left";
inline constexpr std::string_view positionTop = "Velmoriaxcod_Top";
inline constexpr std::string_view positionWidth = "Velmoriaxcod_Width";
inline constexpr std::string_view positionHeight = "Velmoriaxcod_Height";
} // namespace key

/// The words that the options know. All comparisons are exact and case-sensitive.
namespace word {
inline constexpr std::string_view tooltipsOn = "ToolTips on";
inline constexpr std::string_view tooltipsOff = "ToolTips off";
inline constexpr std::string_view personal = "personal";
inline constexpr std::string_view windowsXp = "windows xp";
inline constexpr std::string_view mudo = "mudo";
inline constexpr std::string_view nomudo = "nomudo";
inline constexpr std::string_view muted = "muted";
inline constexpr std::string_view nomuted = "nomuted";
inline constexpr std::string_view siBgSound = "SiBgSound";
inline constexpr std::string_view noBgSound = "NoBgSound";
inline constexpr std::string_view norte = "Norte";
inline constexpr std::string_view sur = "Sur";
inline constexpr std::string_view systray = "systray";
inline constexpr std::string_view toolbar = "toolbar";
inline constexpr std::string_view marsellaone = "marsellaone";
inline constexpr std::string_view marsellaclass = "marsellaclass";
inline constexpr std::string_view oldones = "oldones";
inline constexpr std::string_view real = "real";
inline constexpr std::string_view objetiva = "objetiva";
} // namespace word

/// What each reader read last, and the normalised forms that the running program works with.
struct OptionHolders {
    std::string moduloInicial;
    std::string iniciarMinimizado;
    std::string minimizar;
    std::string tipocartasRead;
    std::string nivelAlertas;
    std::string tooltips;       ///< "ToolTips on" or "ToolTips off" once a module has loaded
    std::string modoSilencioso; ///< "mudo" or "nomudo"
    std::string muteCod;        ///< "muted" or "nomuted"
    std::string estiloTooltips; ///< "personal" or "windows xp"
    std::string hemisferio;     ///< "Norte" or "Sur"
    std::string bgSound;        ///< "SiBgSound" or "NoBgSound"
    bool realThrow = false;     ///< whether the oracle's cards can fall inverted
    std::string profileMainName;
    std::string dibujarSecundario;
    std::string nombreSecundario;

    std::string alertLevel; ///< one of the nine level codes
    std::string minimizeTo; ///< "systray" or "toolbar"
    std::string tipocartas; ///< the deck in use; empty when the file names an unknown one

    // The questions that the windows ask. Tips are neither on nor off for a word of another spelling.
    bool tooltipsOn() const { return tooltips == word::tooltipsOn; }
    bool tooltipsOff() const { return tooltips == word::tooltipsOff; }
    bool personalTooltips() const { return estiloTooltips == word::personal; }
    bool silentTooltips() const { return modoSilencioso == word::mudo; }
    bool moduleChangesSound() const { return bgSound == word::siBgSound; }
    bool minimisesToTray() const { return minimizeTo == word::systray; }
};

/// An option that a module reads as it loads: its key, its holder, and the word for the empty text. Where `other` is
/// not empty it is the only other word, and any other text counts as the empty one.
struct OptionRow {
    std::string_view key;
    std::string OptionHolders::*holder;
    std::string_view standard;
    std::string_view other{};
};
inline constexpr std::array<OptionRow, 4> moduleOptions{{
    {key::desactivarTooltips, &OptionHolders::tooltips, word::tooltipsOn},
    {key::modoSilencioso, &OptionHolders::modoSilencioso, word::nomudo},
    {key::estiloTooltips, &OptionHolders::estiloTooltips, word::windowsXp, word::personal},
    {key::backgroundSound, &OptionHolders::bgSound, word::noBgSound},
}};
inline constexpr std::array<OptionRow, 2> cardOfDayOptions{{
    {key::muteCod, &OptionHolders::muteCod, word::nomuted},
    {key::hemisferio, &OptionHolders::hemisferio, word::norte, word::sur},
}};

} // namespace velmoriax::shell
