// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QRect>
#include <QString>

class QMenu;

namespace velmoriax::desktop {

/// The notification area with the program's one icon.
class Tray : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Shows the icon with its tip and its menu, which must exist until the icon is removed.
    virtual void add(const QString& tip, QMenu* menu) = 0;
    virtual void update(const QString& tip) = 0;
    virtual void remove() = 0;

    /// The balloon at the icon; a new one replaces the old one.
    virtual void showBalloon(const QString& title, const QString& text, bool silent) = 0;
    virtual void hideBalloon() = 0;

    /// True while a hidden window can be brought back by the icon.
    virtual bool reachable() const = 0;

    /// False while the program, just started, still waits for a panel.
    virtual bool decided() const = 0;

    /// Whether the tray reports the pointer over the icon, and the icon's place.
    virtual bool reportsPointer() const = 0;

    /// The icon's place on the screen; empty where the tray does not report it.
    virtual QRect geometry() const = 0;

Q_SIGNALS:
    // When a button of the mouse is released over the icon.
    void leftClicked();
    void leftDoubleClicked();
    void rightClicked();
    void pointerMoved();

    /// The wait for a panel has ended, with a tray or without one.
    void waitEnded();
    /// A tray has been found, and the icon is in it.
    void trayTaken();
    /// The tray has ended and not started again for some seconds: the icon cannot bring back a hidden window.
    void trayLost();
};

} // namespace velmoriax::desktop
