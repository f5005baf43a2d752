// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "desktop/tray_probe.h"

#include <QIcon>
#include <QMenu>
#include <QObject>
#include <QPointer>
#include <QRect>
#include <QSystemTrayIcon>
#include <QTimer>

#include <memory>

namespace velmoriax::desktop {

/// The notification area with the program's one icon. Two protocols serve it: the D-Bus item and the X11 tray window.
/// The toolkit picks one for good at the first use of its tray class, so that class is not touched until a tray is
/// seen: a panel that comes late still gets the icon.
class DesktopTray : public QObject {
    Q_OBJECT

public:
    explicit DesktopTray(QIcon icon, QObject* parent = nullptr);
    ~DesktopTray() override;

    /// Shows the icon with its tip and its menu. The menu stays with its owner.
    void add(const QString& tip, QMenu* menu);
    void update(const QString& tip);
    void remove();

    /// The balloon at the icon; a new one takes the place of the old one.
    void showBalloon(const QString& title, const QString& text, bool silent);
    void hideBalloon();

    /// True while a hidden window can be brought back by the icon.
    bool reachable() const;

    /// False while the program, just started, still waits for a panel.
    bool decided() const { return icon_ || looks_ > maximumLooks; }

    /// Whether the pointer over the icon, and the icon's place, are told: by a tray window, not by an item.
    bool reportsPointer() const { return icon_ && kind_ == TrayKind::window; }

    /// The icon's place on the screen; empty where the tray does not tell it.
    QRect geometry() const;

Q_SIGNALS:
    // As the buttons of the mouse go up over the icon.
    void leftClicked();
    void leftDoubleClicked();
    void rightClicked();
    void pointerMoved();

    /// The wait for a panel has ended, with a tray or without one.
    void waitEnded();
    /// A tray has been found, and the icon is in it.
    void trayTaken();
    /// The tray has gone and not come back for a while: what is hidden cannot be reached by the icon.
    void trayLost();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    static constexpr int maximumLooks = 20;

    void lookForTray();
    void takeTray(TrayKind kind);
    void followItemPanels();
    void apply();
    void watchTrayWindow();
    void onActivated(QSystemTrayIcon::ActivationReason reason);

    QIcon picture_;
    std::unique_ptr<QSystemTrayIcon> icon_;
    TrayKind kind_ = TrayKind::item;
    QPointer<QWidget> trayWindow_; ///< the toolkit's own, in the X11 tray
    QTimer lookAgain_;
    QTimer grace_;
    int looks_ = 0;
    bool wanted_ = false;
    QString tip_;
    QMenu* menu_ = nullptr;
};

} // namespace velmoriax::desktop
