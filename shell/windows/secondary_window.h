// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/windows/process.h"

#include <QWidget>

namespace velmoriax::shell {

/// A window beside the module: notification, tooltip, options and their like. It is loaded at its first touch and gone
/// when it is closed; Escape closes it.
class SecondaryWindow : public QWidget {
    Q_OBJECT

public:
    explicit SecondaryWindow(Process& process, Qt::WindowFlags flags = Qt::Window);

    /// Runs once, at the first touch.
    virtual void load() = 0;

    /// Hides the window, runs `onUnload` and takes it off the registry.
    void unload();

    /// False once the window was unloaded: what let events run inside it is to touch nothing more.
    bool isLoaded() const { return !unloaded_; }

    /// Sets the state to normal, shows the window and gives it the focus.
    void showNormalState();

protected:
    /// Puts the window, before it is shown, over the middle of the module; of the screen while that is out of sight.
    void standOverModule();

    /// What the window leaves behind, however it was closed.
    virtual void onUnload() {}

    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    Process& process() const { return process_; }
    ProcessRecord& record() const { return process_.record; }
    DesktopServices& desktop() const { return process_.desktop; }

private:
    Process& process_;
    bool unloaded_ = false;
};

} // namespace velmoriax::shell
