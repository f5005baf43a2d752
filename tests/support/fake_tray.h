// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "desktop/tray.h"

#include <QMenu>

namespace velmoriax::test {

/// A tray that a test moves by hand. As made it is an X11 tray window with nobody in it.
struct FakeTray : desktop::Tray {
    bool there = false;       ///< whether a panel takes icons
    bool stillWaiting = true; ///< the program, just started, still waits for a panel
    bool isWindow = true;     ///< the X11 window, or the item on the bus
    QRect place;
    bool shown = false;
    QString tip;
    QMenu* menu = nullptr;
    QStringList balloons; ///< title and text in turn
    bool silent = false;  ///< the last balloon
    bool balloonShown = false;

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
    bool reachable() const override { return there; }
    bool decided() const override { return !stillWaiting; }
    bool reportsPointer() const override { return there && isWindow; }
    QRect geometry() const override { return there && isWindow ? place : QRect(); }

    /// A panel is there, and has taken the icon.
    void arrive(bool asWindow = true) {
        there = true;
        stillWaiting = false;
        isWindow = asWindow;
        Q_EMIT trayTaken();
    }
    void loseForGood() {
        there = false;
        Q_EMIT trayLost();
    }
};

} // namespace velmoriax::test
