// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/desktop_tray.h"

#include "platform/qt/tray_probe.h"

namespace velmoriax::desktop {

namespace {

constexpr int lookIntervalMs = 500;
constexpr int mostLooks = 20; ///< a panel comes within ten seconds of a login, or there is none

} // namespace

DesktopTray::DesktopTray(QIcon icon, QObject* parent) : QObject(parent), picture_(std::move(icon)) {
    lookAgain_.setInterval(lookIntervalMs);
    connect(&lookAgain_, &QTimer::timeout, this, &DesktopTray::lookForTray);
}

DesktopTray::~DesktopTray() = default;

void DesktopTray::add(const QString& tip, QMenu* menu) {
    wanted_ = true;
    tip_ = tip;
    menu_ = menu;
    if (icon_) return apply();
    if (!lookAgain_.isActive()) lookForTray();
}

void DesktopTray::update(const QString& tip) {
    tip_ = tip;
    if (icon_) icon_->setToolTip(tip_);
}

void DesktopTray::remove() {
    wanted_ = false;
    menu_ = nullptr;
    if (icon_) apply();
}

bool DesktopTray::reachable() const {
    return icon_ ? QSystemTrayIcon::isSystemTrayAvailable() : trayIsThere();
}

QRect DesktopTray::geometry() const {
    return icon_ ? icon_->geometry() : QRect();
}

void DesktopTray::lookForTray() {
    if (trayIsThere() || ++looks_ > mostLooks) return takeTray();
    lookAgain_.start();
}

void DesktopTray::takeTray() {
    lookAgain_.stop();
    icon_ = std::make_unique<QSystemTrayIcon>(picture_);
    connect(icon_.get(), &QSystemTrayIcon::activated, this, &DesktopTray::onActivated);
    apply();
    Q_EMIT waitEnded();
}

void DesktopTray::apply() {
    icon_->setToolTip(tip_);
    icon_->setContextMenu(menu_);
    icon_->setVisible(wanted_);
}

void DesktopTray::onActivated(QSystemTrayIcon::ActivationReason reason) {
    switch (reason) {
    case QSystemTrayIcon::Trigger:
    case QSystemTrayIcon::MiddleClick:
        Q_EMIT leftClicked();
        break;
    case QSystemTrayIcon::DoubleClick:
        Q_EMIT leftDoubleClicked();
        break;
    case QSystemTrayIcon::Context:
        Q_EMIT rightClicked();
        break;
    case QSystemTrayIcon::Unknown:
        break;
    }
}

} // namespace velmoriax::desktop
