// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/windows/window_registry.h"

#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace velmoriax::shell {

namespace {

constexpr int retryDeletionMs = 50;

/// The entry of a window in a list of loaded windows.
auto entryOf(auto& loaded, const ManagedWindow& window) {
    return std::ranges::find_if(loaded, [&](const auto& each) { return each.window.get() == &window; });
}

} // namespace

WindowRegistry::WindowRegistry(const platform::PendingEvents& events) : events_(events) {}

WindowRegistry::~WindowRegistry() {
    released_.clear();
    while (!loaded_.empty()) {
        const Loaded last = std::move(loaded_.back());
        loaded_.pop_back();           // a window that is deleted may ask for the others, and is not to find itself
        last.window->widget().hide(); // spin boxes change as they are hidden, which the window still has to answer
    }
}

void WindowRegistry::addModule(const ModuleInfo& module, Factory factory) {
    modules_.push_back(&module);
    addSecondary(module.windowName, std::move(factory));
}

void WindowRegistry::addSecondary(std::string_view name, Factory factory) {
    factories_.insert_or_assign(std::string(name), std::move(factory));
}

std::vector<std::string> WindowRegistry::names() const {
    std::vector<std::string> names;
    for (const auto& [name, factory] : factories_) names.push_back(name);
    return names;
}

ManagedWindow& WindowRegistry::touch(std::string_view name) {
    if (ManagedWindow* window = loaded(name)) return *window;
    auto created = factories_.find(name)->second();
    ManagedWindow& window = *created;
    loaded_.push_back({std::string(name), dynamic_cast<ManagedModule*>(created.get()), std::move(created)});
    window.load();
    const auto entry = entryOf(loaded_, window);
    if (entry != loaded_.end()) entry->loading = false;
    return window;
}

ManagedWindow* WindowRegistry::loaded(std::string_view name) const {
    const auto found = std::ranges::find(loaded_, name, &Loaded::name);
    return found == loaded_.end() ? nullptr : found->window.get();
}

void WindowRegistry::unload(std::string_view name) {
    if (ManagedWindow* window = loaded(name)) window->unload();
}

ManagedModule* WindowRegistry::loadedModule() const {
    const auto found = std::find_if(loaded_.rbegin(), loaded_.rend(), [](const Loaded& each) { return each.module; });
    return found == loaded_.rend() ? nullptr : found->module;
}

bool WindowRegistry::isLoaded(const ManagedWindow& window) const {
    return entryOf(loaded_, window) != loaded_.end();
}

bool WindowRegistry::isLoading(const ManagedWindow& window) const {
    const auto entry = entryOf(loaded_, window);
    return entry != loaded_.end() && entry->loading;
}

void WindowRegistry::release(ManagedWindow& window) {
    const auto found = entryOf(loaded_, window);
    if (found == loaded_.end()) return;
    for (QTimer* timer : window.widget().findChildren<QTimer*>()) timer->stop();
    released_.push_back(std::move(found->window));
    loaded_.erase(found);
    if (released_.size() == 1) QTimer::singleShot(0, this, &WindowRegistry::deleteReleased);
}

void WindowRegistry::deleteReleased() {
    if (events_.isProcessing()) {
        QTimer::singleShot(retryDeletionMs, this, &WindowRegistry::deleteReleased);
        return;
    }
    std::exchange(released_, {}).clear();
}

void WindowRegistry::unloadAll(bool modules) {
    std::vector<std::string> names;
    for (const Loaded& each : loaded_)
        if ((each.module != nullptr) == modules) names.push_back(each.name);
    for (const std::string& name : names) unload(name);
}

void WindowRegistry::unloadAll() {
    unloadAll(true);
    unloadAll(false);
}

} // namespace velmoriax::shell
