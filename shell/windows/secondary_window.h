// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/windows/managed_window.h"
#include "shell/windows/window_context.h"

#include <QWidget>

namespace velmoriax::shell {

/// A window beside the module: notification, tooltip, options and their like. It is loaded at its first touch and gone
/// when it is closed; Escape closes it.
class SecondaryWindow : public QWidget, public ManagedWindow {
    Q_OBJECT

public:
    explicit SecondaryWindow(WindowContext& context, Qt::WindowFlags flags = Qt::Window);

    QWidget& widget() override { return *this; }

    /// Hides the window, runs `onUnload` and takes it off the registry.
    void unload() override;

    void showNormalState() override;

    /// False once the window was unloaded: what has processed events inside it touches nothing more.
    bool isLoaded() const { return !unloaded_; }

protected:
    /// Puts the window, before it is shown, over the middle of the module; of the screen while that is out of sight.
    void centreOverModule();

    /// What the window leaves behind, however it was closed.
    virtual void onUnload() {}

    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    WindowContext& context() const { return context_; }
    ShellState& state() const { return context_.state; }
    OptionsStore& options() const { return context_.options; }
    WindowRegistry& windows() const { return context_.windows; }
    DesktopServices& desktop() const { return context_.desktop; }

private:
    WindowContext& context_;
    bool unloaded_ = false;
};

} // namespace velmoriax::shell
