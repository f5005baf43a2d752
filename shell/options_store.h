// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/files.h"

#include <string>
#include <string_view>

/// The options file: the only configuration. There is no settings object in memory: each key is read when it is needed
/// and written when it is changed, and a few holders keep what was read last.
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
};

/// Access to the options file and the holders. Texts are UTF-8 here and Windows-1252 in the file. Nothing is reported:
/// an unreadable file reads as empty, a write that fails leaves the file as it was.
class OptionsStore {
public:
    explicit OptionsStore(platform::Files& files) : files_(files) {}

    OptionHolders holders;

    /// The path of the options file as the program writes it.
    std::string fileName() const;

    /// The value of a key of any private-profile file; empty when it is missing. 254 characters at most.
    std::string readProfileString(std::string_view lpAppName, std::string_view lpKeyName,
                                  const std::string& lpFileName) const;

    /// Nonzero on success. What cannot be read is not overwritten.
    int writeProfileString(std::string_view lpAppName, std::string_view lpKeyName, std::string_view lpString,
                           const std::string& lpFileName);

    /// A key of the section "opciones" of the options file, without touching a holder.
    std::string option(std::string_view key) const;
    void setOption(std::string_view key, std::string_view value);

    // The readers: each reads its key and keeps the value in its holder besides giving it back.
    const std::string& leerModuloInicial() { return readInto(holders.moduloInicial, key::moduloInicial); }
    const std::string& leerIniciarMinimizado() { return readInto(holders.iniciarMinimizado, key::iniciarMinimizado); }
    const std::string& leerMinimizar() { return readInto(holders.minimizar, key::minimizar); }
    const std::string& leerTipocartas() { return readInto(holders.tipocartasRead, key::tipocartas); }
    const std::string& leerNivelAlertas() { return readInto(holders.nivelAlertas, key::nivelAlertas); }
    const std::string& leerTooltips() { return readInto(holders.tooltips, key::desactivarTooltips); }
    const std::string& leerModoSilencioso() { return readInto(holders.modoSilencioso, key::modoSilencioso); }
    const std::string& leerMutecod() { return readInto(holders.muteCod, key::muteCod); }
    const std::string& leerEstiloTooltips() { return readInto(holders.estiloTooltips, key::estiloTooltips); }
    const std::string& leerHemisferio() { return readInto(holders.hemisferio, key::hemisferio); }
    const std::string& leerBgSound() { return readInto(holders.bgSound, key::backgroundSound); }
    const std::string& leerPerfilBio() { return readInto(holders.profileMainName, key::perfilBio); }
    const std::string& leerDibujarSecundario() { return readInto(holders.dibujarSecundario, key::dibujarSecundario); }
    const std::string& leerNombreSecundario() { return readInto(holders.nombreSecundario, key::nombreSecundario); }

    /// What the hub reads at start: alert level, minimise target and deck, each in its normalised form.
    void readAtStart();

    /// What each module reads when it loads.
    void readAtModuleLoad();

    /// What the Card of the Day alone reads when it loads.
    void readAtCardOfDayLoad();

private:
    const std::string& readInto(std::string& holder, std::string_view key);

    platform::Files& files_;
};

} // namespace velmoriax::shell
