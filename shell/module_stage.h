// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// What the program is doing with its modules, and which requests that allows. Loads, slides and searches process
/// pending events, so a request may come in the middle of any of them.
namespace velmoriax::shell {

enum class Stage {
    empty,       ///< the program starts: no module is loaded yet
    loading,     ///< the first module loads, or the loaded one loads anew
    loaded,      ///< one module is loaded and nothing is under way
    handingOver, ///< the next module loads, then the one before is unloaded
    leaving      ///< the program ends; never left
};

enum class Request {
    load,     ///< load the first module, or the loaded one anew
    handOver, ///< go to another module
    command,  ///< anything else that a menu, a button or the tray asks of the loaded module
    exit      ///< end the program
};

enum class Answer {
    act,   ///< at once
    wait,  ///< when what is under way is done
    ignore ///< never
};

Answer answerTo(Request request, Stage stage);

} // namespace velmoriax::shell
