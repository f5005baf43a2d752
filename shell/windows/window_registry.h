// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/pending_events.h"
#include "shell/modules.h"

#include <QWidget>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace velmoriax::shell {

class ModuleWindow;
class SecondaryWindow;
struct Process;

/// The windows of the process by name. A window is a single instance that comes into being at its first touch; rooms
/// know one another's windows by name alone.
class WindowRegistry : public QObject {
public:
    using ModuleFactory = std::function<ModuleWindow*(Process&)>;
    using SecondaryFactory = std::function<SecondaryWindow*(Process&)>;

    explicit WindowRegistry(const platform::PendingEvents& events);
    ~WindowRegistry() override;

    void addModule(Module module, ModuleFactory factory);
    void addSecondary(const std::string& name, SecondaryFactory factory);

    /// The module's window; the first touch creates it and runs its load routine. What runs inside the load may unload
    /// it again.
    ModuleWindow& touch(Module module, Process& process);

    /// The secondary window of that name, created and loaded at its first touch.
    SecondaryWindow& touch(const std::string& name, Process& process);

    /// The secondary window if it is loaded.
    SecondaryWindow* loaded(const std::string& name) const;

    /// Unloads a secondary window; does nothing when it is not loaded.
    void unload(const std::string& name);

    /// The module that is loaded; the latest one while a hand-over is under way. Null before the first.
    ModuleWindow* loadedModule() const;
    const std::vector<ModuleWindow*>& loadedModules() const { return loadedModules_; }

    bool isLoaded(const ModuleWindow& window) const;

    /// Takes a window off the list. It is destroyed when control is back in the outermost event loop: a search or a
    /// slide that let events run may still be at work in it.
    void release(ModuleWindow& window);
    void release(SecondaryWindow& window);

    /// Unloads everything: the modules, then the windows beside them.
    void unloadAll();

private:
    void bury(QWidget& window);
    void destroyBuried();

    const platform::PendingEvents& events_;
    std::vector<QWidget*> buried_;
    std::map<Module, ModuleFactory> moduleFactories_;
    std::map<std::string, SecondaryFactory> secondaryFactories_;
    std::vector<ModuleWindow*> loadedModules_;
    std::map<std::string, SecondaryWindow*> loadedSecondaries_;
};

} // namespace velmoriax::shell
