// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/files.h"
#include "shell/options.h"

#include <span>
#include <string>
#include <string_view>

/// The options file: the only configuration. There is no settings object in memory: each key is read when it is needed
/// and written when it is changed, and a few holders keep what was read last.
namespace velmoriax::shell {

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
    void readAtModuleLoad() { readRows(moduleOptions); }

    /// What the Card of the Day alone reads when it loads.
    void readAtCardOfDayLoad() { readRows(cardOfDayOptions); }

private:
    const std::string& readInto(std::string& holder, std::string_view key);
    void readRows(std::span<const OptionRow> rows);

    platform::Files& files_;
};

} // namespace velmoriax::shell
