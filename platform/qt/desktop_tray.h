// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QMenu>
#include <QObject>
#include <QRect>
#include <QSystemTrayIcon>
#include <QTimer>

#include <functional>
#include <memory>

namespace velmoriax::desktop {

/// The notification area with the program's one icon. Two protocols serve it: the D-Bus item and the X11 tray window.
/// The toolkit picks one for good at the first use of its tray class, so that class is not touched until a tray is
/// seen, or until the wait at login is over.
class DesktopTray : public QObject {
    Q_OBJECT

public:
    explicit DesktopTray(QIcon icon, QObject* parent = nullptr);
    ~DesktopTray() override;

    /// Shows the icon with its tip and its menu. The menu stays with its owner.
    void add(const QString& tip, QMenu* menu);
    void update(const QString& tip);
    void remove();

    /// True while a hidden window can be brought back by the icon.
    bool reachable() const;

    /// False while the program still waits for a panel.
    bool decided() const { return icon_ != nullptr; }

    /// The icon's place on the screen; empty where the tray does not tell it.
    QRect geometry() const;

Q_SIGNALS:
    void leftClicked();
    void leftDoubleClicked();
    void rightClicked();
    /// The wait for a panel has ended, with a tray or without one.
    void waitEnded();

private:
    void lookForTray();
    void takeTray();
    void onActivated(QSystemTrayIcon::ActivationReason reason);
    void apply();

    QIcon picture_;
    std::unique_ptr<QSystemTrayIcon> icon_;
    QTimer lookAgain_;
    int looks_ = 0;
    bool wanted_ = false;
    QString tip_;
    QMenu* menu_ = nullptr;
};

} // namespace velmoriax::desktop
