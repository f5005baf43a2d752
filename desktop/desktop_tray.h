// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "desktop/tray.h"
#include "desktop/tray_probe.h"

#include <QIcon>
#include <QMenu>
#include <QPointer>
#include <QSystemTrayIcon>
#include <QTimer>

#include <memory>

namespace velmoriax::desktop {

/// The tray of the desktop, by one of two protocols: the D-Bus item and the X11 tray window. The toolkit picks one for
/// good at the first use of its tray class, so that class is not touched until a tray is seen: a panel that starts
/// later still gets the icon.
class DesktopTray : public Tray {
    Q_OBJECT

public:
    explicit DesktopTray(QIcon icon, QObject* parent = nullptr);
    ~DesktopTray() override;

    void add(const QString& tip, QMenu* menu) override;
    void update(const QString& tip) override;
    void remove() override;
    void showBalloon(const QString& title, const QString& text, bool silent) override;
    void hideBalloon() override;
    bool reachable() const override;
    bool decided() const override { return icon_ || looks_ > maximumLooks; }
    bool reportsPointer() const override { return icon_ && kind_ == TrayKind::window; }
    QRect geometry() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    static constexpr int maximumLooks = 20;

    void lookForTray();
    void takeTray(TrayKind kind);
    void followItemPanels();
    void apply();
    void watchTrayWindow();
    void onMouseButton(const QMouseEvent& event);
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
