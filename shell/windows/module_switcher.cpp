// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/windows/module_switcher.h"

#include "shell/windows/window_registry.h"

#include <QCoreApplication>
#include <QTimer>

#include <utility>

namespace velmoriax::shell {

/// A stage for as long as this lives; then one module is loaded, unless the program is ending.
class ModuleSwitcher::StageScope {
public:
    StageScope(ModuleSwitcher& switcher, Stage stage) : switcher_(switcher) { switcher_.stage_ = stage; }
    ~StageScope() {
        if (switcher_.stage_ == Stage::leaving) return;
        switcher_.stage_ = Stage::loaded;
        switcher_.runWaitingSoon();
    }
    StageScope(const StageScope&) = delete;
    StageScope& operator=(const StageScope&) = delete;

private:
    ModuleSwitcher& switcher_;
};

void ModuleSwitcher::loadFirst(std::string_view module) {
    if (answerTo(Request::load, stage_) != Answer::act) return;
    const StageScope loading(*this, Stage::loading);
    context_.windows.touch(module);
}

void ModuleSwitcher::loadAnew(const std::function<void()>& load) {
    const Answer answer = answerTo(Request::load, stage_);
    if (answer == Answer::wait) waitingLoad_ = load;
    if (answer != Answer::act) return;
    const StageScope loading(*this, Stage::loading);
    load();
}

void ModuleSwitcher::handOver(std::string_view target) {
    const Answer answer = answerTo(Request::handOver, stage_);
    if (answer == Answer::wait) waitingTarget_ = target;
    if (answer == Answer::act) switchTo(target);
}

void ModuleSwitcher::switchTo(std::string_view target) {
    const StageScope handingOver(*this, Stage::handingOver);
    waitingLoad_ = nullptr; // of the module that is left now
    ManagedModule* source = context_.windows.loadedModule();
    if (context_.windows.loaded(target) == source) return source->showNormalState();
    source->beforeHandOver();
    source->removeTrayIcon();
    ManagedWindow& next = context_.windows.touch(target);
    if (stage_ == Stage::leaving) return; // the load has processed events, the program's exit among them
    next.showNormalState();
    source->unload();
}

void ModuleSwitcher::exit() {
    if (answerTo(Request::exit, stage_) == Answer::act) {
        stage_ = Stage::leaving;
        if (ManagedModule* module = context_.windows.loadedModule()) module->removeTrayIcon();
        context_.state.closingAll = true;
        context_.windows.unloadAll();
    }
    QCoreApplication::exit(0);
}

void ModuleSwitcher::runWaitingSoon() {
    const bool waits = !waitingTarget_.empty() || waitingLoad_;
    if (waits) QTimer::singleShot(0, this, &ModuleSwitcher::runWaiting);
}

void ModuleSwitcher::runWaiting() {
    if (!waitingTarget_.empty()) return handOver(std::exchange(waitingTarget_, {}));
    if (waitingLoad_) loadAnew(std::exchange(waitingLoad_, nullptr));
}

} // namespace velmoriax::shell
