// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/pending_events.h"
#include "shell/modules.h"
#include "shell/windows/managed_window.h"

#include <QObject>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace velmoriax::shell {

/// The windows of the program by name. Within a subsystem a window is asked for by its type, which has its name as
/// `windowName`; the windows of other subsystems are known by name alone.
class WindowRegistry : public QObject {
public:
    using Factory = std::function<std::unique_ptr<ManagedWindow>()>;

    explicit WindowRegistry(const platform::PendingEvents& events);
    ~WindowRegistry() override;

    // Which windows there are.

    void addModule(const ModuleInfo& module, Factory factory);
    void addSecondary(std::string_view name, Factory factory);

    /// Adds the secondary window `Window`, which is made of these arguments.
    template<typename Window, typename... Arguments>
    void add(Arguments&... arguments) {
        addSecondary(Window::windowName, [&arguments...] { return std::make_unique<Window>(arguments...); });
    }

    /// Adds the module whose window is `Window`.
    template<typename Window, typename... Arguments>
    void add(const ModuleInfo& module, Arguments&... arguments) {
        addModule(module, [&arguments...] { return std::make_unique<Window>(arguments...); });
    }

    /// The modules in the order in which they were added.
    const ModuleList& modules() const { return modules_; }

    /// The names of all windows, loaded or not.
    std::vector<std::string> names() const;

    // The windows that are loaded.

    /// The window of that name; the first touch creates it and runs its load routine. What runs inside the load may
    /// unload it again. The name has to be a registered one.
    ManagedWindow& touch(std::string_view name);

    template<typename Window>
    Window& touch() {
        return dynamic_cast<Window&>(touch(Window::windowName));
    }

    /// The window if it is loaded, else null.
    ManagedWindow* loaded(std::string_view name) const;

    template<typename Window>
    Window* loaded() const {
        return dynamic_cast<Window*>(loaded(Window::windowName));
    }

    /// Unloads a window; does nothing when it is not loaded.
    void unload(std::string_view name);

    /// The module that is loaded; the latest one during a hand-over. Null before the first.
    ManagedModule* loadedModule() const;

    bool isLoaded(const ManagedWindow& window) const;

    /// True while the window's first load routine runs.
    bool isLoading(const ManagedWindow& window) const;

    /// Takes a window off the list. It is deleted when control is back in the outermost event loop: a search or a slide
    /// that processes events may still be at work in it.
    void release(ManagedWindow& window);

    /// Unloads everything: the modules, then the windows beside them.
    void unloadAll();

private:
    struct Loaded {
        std::string name;
        ManagedModule* module; ///< the window itself when it is one, else null
        std::unique_ptr<ManagedWindow> window;
        bool loading = true;
    };

    void unloadAll(bool modules);
    void deleteReleased();

    const platform::PendingEvents& events_;
    ModuleList modules_;
    std::map<std::string, Factory, std::less<>> factories_;
    std::vector<Loaded> loaded_; ///< in the order of their creation
    std::vector<std::unique_ptr<ManagedWindow>> released_;
};

} // namespace velmoriax::shell
