// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/module_stage.h"
#include "shell/windows/window_context.h"

#include <QObject>

#include <functional>
#include <string>
#include <string_view>

namespace velmoriax::shell {

/// Loads the first module, hands over from one to the next and ends the program. It is the one owner of the stage that
/// the program is in: whatever a window, the tray or a signal asks for comes here, at any moment.
class ModuleSwitcher : public QObject {
public:
    explicit ModuleSwitcher(WindowContext& context) : context_(context) {}

    Stage stage() const { return stage_; }

    /// Loads the first module. Throws base::RunTimeError for what the program does not survive.
    void loadFirst(std::string_view module);

    /// Runs a load of the module that is loaded, anew. While another load is under way it waits for the end of that; it
    /// is dropped when the module is being left.
    void loadAnew(const std::function<void()>& load);

    /// Goes to the module whose window has that name, from the one that is loaded: icon off, target loaded and shown,
    /// the one before unloaded. While a load is under way it waits for its end; of several that wait the latest counts.
    void handOver(std::string_view target);

    /// True when the loaded module may carry out a command.
    bool takesCommands() const { return answerTo(Request::command, stage_) == Answer::act; }

    /// Ends the program, whatever is under way: icon off, all windows unloaded, the event loops left. The second call
    /// and each later one leaves the event loops again, since a box may have been opened meanwhile.
    void exit();

private:
    class StageScope;

    void switchTo(std::string_view target);
    void runWaitingSoon();
    void runWaiting();

    WindowContext& context_;
    Stage stage_ = Stage::empty;
    std::string waitingTarget_;         ///< of a hand-over; empty when none waits
    std::function<void()> waitingLoad_; ///< of the loaded module
};

} // namespace velmoriax::shell
