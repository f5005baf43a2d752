// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/windows/window_registry.h"

#include "shell/windows/module_window.h"
#include "shell/windows/secondary_window.h"

#include <QTimer>

#include <algorithm>
#include <utility>

namespace velmoriax::shell {

namespace {

constexpr int lookAgainMs = 50;

} // namespace

WindowRegistry::WindowRegistry(const platform::PendingEvents& events) : events_(events) {}

WindowRegistry::~WindowRegistry() {
    for (QWidget* window : buried_) delete window;
    for (const auto& [name, window] : loadedSecondaries_) delete window;
    for (ModuleWindow* window : loadedModules_) delete window;
}

void WindowRegistry::addModule(Module module, ModuleFactory factory) {
    moduleFactories_[module] = std::move(factory);
}

void WindowRegistry::addSecondary(const std::string& name, SecondaryFactory factory) {
    secondaryFactories_[name] = std::move(factory);
}

ModuleWindow& WindowRegistry::touch(Module module, Process& process) {
    const auto found = std::ranges::find(loadedModules_, module, &ModuleWindow::module);
    if (found != loadedModules_.end()) return **found;
    ModuleWindow* window = moduleFactories_.at(module)(process);
    loadedModules_.push_back(window);
    window->load();
    return *window;
}

SecondaryWindow& WindowRegistry::touch(const std::string& name, Process& process) {
    if (SecondaryWindow* window = loaded(name)) return *window;
    SecondaryWindow* window = secondaryFactories_.at(name)(process);
    loadedSecondaries_[name] = window;
    window->load();
    return *window;
}

SecondaryWindow* WindowRegistry::loaded(const std::string& name) const {
    const auto found = loadedSecondaries_.find(name);
    return found == loadedSecondaries_.end() ? nullptr : found->second;
}

void WindowRegistry::unload(const std::string& name) {
    if (SecondaryWindow* window = loaded(name)) window->unload();
}

ModuleWindow* WindowRegistry::loadedModule() const {
    return loadedModules_.empty() ? nullptr : loadedModules_.back();
}

bool WindowRegistry::isLoaded(const ModuleWindow& window) const {
    return std::ranges::find(loadedModules_, &window) != loadedModules_.end();
}

void WindowRegistry::release(ModuleWindow& window) {
    std::erase(loadedModules_, &window);
    bury(window);
}

void WindowRegistry::release(SecondaryWindow& window) {
    std::erase_if(loadedSecondaries_, [&](const auto& entry) { return entry.second == &window; });
    bury(window);
}

void WindowRegistry::bury(QWidget& window) {
    for (QTimer* timer : window.findChildren<QTimer*>()) timer->stop();
    buried_.push_back(&window);
    if (buried_.size() == 1) QTimer::singleShot(0, this, &WindowRegistry::destroyBuried);
}

void WindowRegistry::destroyBuried() {
    if (events_.areRunning()) {
        QTimer::singleShot(lookAgainMs, this, &WindowRegistry::destroyBuried);
        return;
    }
    for (QWidget* window : std::exchange(buried_, {})) delete window;
}

void WindowRegistry::unloadAll() {
    const auto modulesNow = loadedModules_;
    for (ModuleWindow* window : modulesNow) window->unloadAtExit();
    const auto secondariesNow = loadedSecondaries_;
    for (const auto& [name, window] : secondariesNow) window->unload();
}

} // namespace velmoriax::shell
