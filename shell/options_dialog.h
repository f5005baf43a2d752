// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/autostart.h"
#include "platform/message_boxes.h"
#include "platform/task_bar.h"
#include "shell/modules.h"
#include "shell/options_store.h"
#include "shell/shell_state.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

/// What the options dialog shows, writes and changes, without its window. There is no Cancel: each control writes its
/// key at the moment it changes.
namespace velmoriax::shell {

/// The check boxes and option buttons, by their control names.
enum class Option {
    OptReal,
    OptObj,
    CheckWin,
    CheckMini,
    CheckTooltips,
    OptionPersonal,
    OptionXP,
    OptionNorte,
    OptionSur,
    OptionBeauty,
    OptionClassic,
    OptionFree,
    CheckNoSound,
    CheckCardDayMute,
    CheckBgSound,
    OptionSystray,
    OptionToolbar,
};
inline constexpr std::size_t optionCount = 17;

enum class OptionList { Combolist, ComboBio };

/// The controls' state. As designed: nothing checked, nothing chosen, everything enabled.
struct OptionControls {
    struct Control {
        bool on = false;
        bool enabled = true;
    };
    std::array<Control, optionCount> controls{};
    std::array<int, 2> entries{-1, -1}; ///< chosen entry of each list, -1 for none

    const Control& operator[](Option option) const { return controls[static_cast<std::size_t>(option)]; }
    Control& operator[](Option option) { return controls[static_cast<std::size_t>(option)]; }
    int operator[](OptionList list) const { return entries[static_cast<std::size_t>(list)]; }
    int& operator[](OptionList list) { return entries[static_cast<std::size_t>(list)]; }
};

/// The control's object name in the window.
std::string_view controlName(Option option);
bool isCheckBox(Option option);

class OptionsDialog {
public:
    struct Desktop {
        platform::Autostart& autostart;
        platform::MessageBoxes& boxes;
        const platform::TaskBar& taskBar;
    };

    OptionsDialog(OptionsStore& options, ShellState& shellState, Desktop desktop, const ModuleList& modules) :
        options_(options), shellState_(shellState), desktop_(desktop), modules_(modules) {}

    const OptionControls& state() const { return state_; }

    /// Reads the keys of the section and sets the controls, in a fixed order. A control that changes runs its handler
    /// as if it had been clicked, so that opening the dialog has consequences: it tests the panel for the personal
    /// tooltip, renews the autostart entry and sets the alert level anew. `lpKeyName` is not used; `vDefault` is used
    /// for an empty value.
    void LeerIni(const std::string& lpFileName, std::string_view lpAppName, std::string_view lpKeyName,
                 std::string_view vDefault = {});

    /// A click by the user. An option button that is chosen already runs its handler again.
    void click(Option option);
    void choose(OptionList list, int entry);

    /// The closing button allows the tray tip again; the window's close box does not.
    void accept() { shellState_.trayBusy = false; }

    // One routine a key: section, key and file are its own, the value alone is the caller's.
    void GuardarIni(std::string_view lpString) { save(key::tirada, lpString); }
    void GuardarCombolist(std::string_view lpString) { save(key::moduloInicial, lpString); }
    void GuardarCombobio(std::string_view lpString) { save(key::nivelAlertas, lpString); }
    void GuardarIniWin(std::string_view lpString) { save(key::iniciarConWindows, lpString); }
    void GuardarIniMini(std::string_view lpString) { save(key::iniciarMinimizado, lpString); }
    void GuardarTooltips(std::string_view lpString) { save(key::desactivarTooltips, lpString); }
    void GuardarEstiloTooltips(std::string_view lpString) { save(key::estiloTooltips, lpString); }
    void GuardarNoSoundtips(std::string_view lpString) { save(key::modoSilencioso, lpString); }
    void GuardarMutecod(std::string_view lpString) { save(key::muteCod, lpString); }
    void GuardarBgSound(std::string_view lpString) { save(key::backgroundSound, lpString); }
    void GuardarHemisferio(std::string_view lpString) { save(key::hemisferio, lpString); }
    void GuardarTipocarta(std::string_view lpString) { save(key::tipocartas, lpString); }
    void GuardarMinimizar(std::string_view lpString) { save(key::minimizar, lpString); }

    /// Creates the autostart entry, and removes it.
    void WriteIniWin() { desktop_.autostart.write("Velmoriax"); }
    void EraseIniWin() { desktop_.autostart.erase("Velmoriax"); }

    // What a handler does besides writing its key.
    void writeOrEraseAutostart();
    void setThrow();
    void enableTooltipControls();
    void allowSilentMode();
    void testTaskBar();

private:
    void save(std::string_view key, std::string_view value) { options_.setOption(key, value); }
    void setCheck(Option option, bool on);
    void setChosen(Option option);
    void setEntry(OptionList list, int entry);
    void pressIn(Option option);
    void runHandler(Option option);
    OptionHolders& holders() { return options_.holders; }

    OptionsStore& options_;
    ShellState& shellState_;
    Desktop desktop_;
    const ModuleList& modules_;
    OptionControls state_;
};

} // namespace velmoriax::shell
