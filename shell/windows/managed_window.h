// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

namespace velmoriax::shell {

/// A window as the registry handles it: a single instance, created and loaded at its first touch.
class ManagedWindow {
public:
    virtual ~ManagedWindow() = default;

    virtual QWidget& widget() = 0;

    /// Runs once, at the first touch; a module may run it again on a live window.
    virtual void load() = 0;

    /// Unloads the window for real and takes it off the registry.
    virtual void unload() = 0;

    /// Sets the state to normal, shows the window and focuses it.
    virtual void showNormalState() = 0;
};

/// A window that is a module.
class ManagedModule : public ManagedWindow {
public:
    virtual void removeTrayIcon() = 0;

    /// Another module is about to be loaded in place of this one.
    virtual void beforeHandOver() = 0;
};

} // namespace velmoriax::shell
