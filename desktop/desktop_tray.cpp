// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/desktop_tray.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QMouseEvent>

#include <algorithm>

namespace velmoriax::desktop {

namespace {

constexpr int firstLookMs = 60;          ///< the first window is shown before the icon
constexpr int lookIntervalMs = 500;      ///< most panels start within ten seconds of a login
constexpr int lateLookIntervalMs = 5000; ///< for a panel that starts later
constexpr int graceMs = 6000;            ///< how long a panel may take to start again
constexpr int balloonMs = 60000;         ///< the pointer closes the balloon long before

} // namespace

DesktopTray::DesktopTray(QIcon icon, QObject* parent) : Tray(parent), picture_(std::move(icon)) {
    connect(&lookAgain_, &QTimer::timeout, this, &DesktopTray::lookForTray);
    grace_.setSingleShot(true);
    grace_.setInterval(graceMs);
    connect(&grace_, &QTimer::timeout, this, [this] {
        if (!reachable()) Q_EMIT trayLost();
    });
}

DesktopTray::~DesktopTray() = default;

void DesktopTray::add(const QString& tip, QMenu* menu) {
    wanted_ = true;
    tip_ = tip;
    menu_ = menu;
    if (icon_) return apply();
    if (!lookAgain_.isActive()) lookAgain_.start(firstLookMs);
}

void DesktopTray::update(const QString& tip) {
    if (tip == tip_) return;
    tip_ = tip;
    if (icon_) icon_->setToolTip(tip_);
}

void DesktopTray::remove() {
    wanted_ = false;
    menu_ = nullptr;
    if (icon_) apply();
}

void DesktopTray::showBalloon(const QString& title, const QString& text, bool silent) {
    if (!icon_) return;
    if (!silent) QApplication::beep();
    icon_->showMessage(title, text, QSystemTrayIcon::Information, balloonMs);
}

void DesktopTray::hideBalloon() {
    // An empty balloon closes the one that is open; as an item's notification it would be shown.
    if (reportsPointer()) icon_->showMessage({}, {}, QSystemTrayIcon::NoIcon, 0);
}

bool DesktopTray::reachable() const {
    return icon_ ? trayIsThere(kind_) : trayThatIsThere().has_value();
}

QRect DesktopTray::geometry() const {
    if (!trayWindow_ || !trayWindow_->isVisible()) return {};
    return {trayWindow_->mapToGlobal(QPoint(0, 0)), trayWindow_->size()};
}

void DesktopTray::lookForTray() {
    if (const auto kind = trayThatIsThere()) return takeTray(*kind);
    const bool waitEndsNow = looks_ <= maximumLooks && ++looks_ > maximumLooks;
    lookAgain_.start(looks_ > maximumLooks ? lateLookIntervalMs : lookIntervalMs);
    if (waitEndsNow) Q_EMIT waitEnded();
}

void DesktopTray::takeTray(TrayKind kind) {
    lookAgain_.stop();
    const bool waited = !decided();
    kind_ = kind;
    icon_ = std::make_unique<QSystemTrayIcon>(picture_);
    connect(icon_.get(), &QSystemTrayIcon::activated, this, &DesktopTray::onActivated);
    if (kind == TrayKind::item) followItemPanels();
    apply();
    if (waited) Q_EMIT waitEnded();
    Q_EMIT trayTaken();
}

void DesktopTray::followItemPanels() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    auto* watcher = new QDBusServiceWatcher(itemWatcherService, bus, QDBusServiceWatcher::WatchForUnregistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceUnregistered, &grace_, qOverload<>(&QTimer::start));
    bus.connect(itemWatcherService, itemWatcherPath, itemWatcherService,
                QStringLiteral("StatusNotifierHostUnregistered"), &grace_, SLOT(start()));
}

void DesktopTray::apply() {
    icon_->setToolTip(tip_);
    icon_->setContextMenu(menu_);
    // The window that shows the icon is destroyed whenever the icon is hidden, which is no loss of the tray.
    if (!wanted_ && trayWindow_) trayWindow_->removeEventFilter(this);
    icon_->setVisible(wanted_);
    if (wanted_ && kind_ == TrayKind::window) watchTrayWindow();
}

void DesktopTray::watchTrayWindow() {
    const auto windows = QApplication::topLevelWidgets();
    const auto found =
        std::ranges::find_if(windows, [](const QWidget* w) { return w->inherits("QSystemTrayIconSys"); });
    if (found == windows.end()) return;
    trayWindow_ = *found;
    trayWindow_->installEventFilter(this);
}

bool DesktopTray::eventFilter(QObject* watched, QEvent* event) {
    if (watched != trayWindow_) return Tray::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::Enter:
    case QEvent::MouseMove:
    case QEvent::Leave: // a fast pointer leaves without any other move, after a click for instance
        Q_EMIT pointerMoved();
        return false;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
        onButton(static_cast<QMouseEvent&>(*event));
        return true;
    case QEvent::Hide:
        if (wanted_) grace_.start();
        return false;
    default:
        return false;
    }
}

/// The toolkit acts on the press already. An icon of ours acts when the button goes up, as a button does, and then as
/// the last thing: the handlers may remove the icon.
void DesktopTray::onButton(const QMouseEvent& event) {
    const bool released = event.type() == QEvent::MouseButtonRelease;
    const bool left = event.button() == Qt::LeftButton;
    if (event.type() == QEvent::MouseButtonDblClick && left) Q_EMIT leftDoubleClicked();
    if (released && left) Q_EMIT leftClicked();
    if (released && event.button() == Qt::RightButton) Q_EMIT rightClicked();
}

void DesktopTray::onActivated(QSystemTrayIcon::ActivationReason reason) {
    // Only clicks on an item arrive here: the event filter keeps the mouse events of a tray window.
    switch (reason) {
    case QSystemTrayIcon::Trigger:
    case QSystemTrayIcon::MiddleClick: // some panels open the menu on the left button and send this for the item itself
        Q_EMIT leftClicked();
        break;
    case QSystemTrayIcon::DoubleClick:
        Q_EMIT leftDoubleClicked();
        break;
    case QSystemTrayIcon::Context: // from a panel that does not show the menu itself
        Q_EMIT rightClicked();
        break;
    case QSystemTrayIcon::Unknown:
        break;
    }
}

} // namespace velmoriax::desktop
