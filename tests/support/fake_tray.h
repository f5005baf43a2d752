// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "desktop/tray.h"
#include "desktop/tray_probe.h"

#include <QMenu>

namespace velmoriax::test {

/// A tray that is controlled by a test, of either protocol. At first the program still waits for a panel.
class FakeTray : public desktop::Tray {
public:
    bool shown = false; ///< the icon
    QString tip;
    QMenu* menu = nullptr;
    QStringList balloons;      ///< title and text in turn
    bool balloonShown = false; ///< whether the last one is still open
    bool silent = false;       ///< whether the last one was silent
    QRect place;               ///< the icon's rectangle, which only a tray window reports

    void add(const QString& newTip, QMenu* newMenu) override {
        shown = true;
        tip = newTip;
        menu = newMenu;
    }
    void update(const QString& newTip) override { tip = newTip; }
    void remove() override {
        shown = false;
        menu = nullptr;
    }
    void showBalloon(const QString& title, const QString& text, bool isSilent) override {
        balloons << title << text;
        silent = isSilent;
        balloonShown = true;
    }
    void hideBalloon() override { balloonShown = false; }
    bool reachable() const override { return reachable_; }
    bool decided() const override { return decided_; }
    bool reportsPointer() const override { return taken_ && kind_ == desktop::TrayKind::window; }
    QRect geometry() const override { return reportsPointer() ? place : QRect(); }

    /// A panel starts and takes the icon.
    void arrive(desktop::TrayKind kind = desktop::TrayKind::window) {
        kind_ = kind;
        taken_ = reachable_ = true;
        endWait();
        Q_EMIT trayTaken();
    }
    /// The wait ends, without a panel unless one has arrived.
    void endWait() {
        if (!std::exchange(decided_, true)) Q_EMIT waitEnded();
    }
    /// The panel ends and does not start again in time.
    void lose() {
        reachable_ = false;
        Q_EMIT trayLost();
    }
    /// The panel starts again, which no signal reports.
    void comeBack() { reachable_ = true; }

    void movePointer() {
        if (shown && reportsPointer()) Q_EMIT pointerMoved();
    }
    void click() { Q_EMIT leftClicked(); }
    void doubleClick() { Q_EMIT leftDoubleClicked(); }
    void rightClick() { Q_EMIT rightClicked(); }

private:
    desktop::TrayKind kind_ = desktop::TrayKind::window;
    bool taken_ = false;
    bool reachable_ = false;
    bool decided_ = false;
};

} // namespace velmoriax::test
