// SPDX-License-Identifier: GPL-3.0-or-later
#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>

#include <cstdio>

/// A panel for tray items without anything to see: it takes part in the protocol and prints "item SERVICE" for each
/// item that registers, so that a script can talk to the item.
class ItemPanel : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ hostIsThere)
    Q_PROPERTY(int ProtocolVersion READ version)
    Q_PROPERTY(QStringList RegisteredStatusNotifierItems READ items)

public:
    bool hostIsThere() const { return true; }
    int version() const { return 0; }
    QStringList items() const { return items_; }

public Q_SLOTS:
    void RegisterStatusNotifierItem(const QString& service) {
        items_ << (service.startsWith(u'/') ? message().service() : service);
        std::printf("item %s\n", qPrintable(items_.constLast()));
        std::fflush(stdout);
        Q_EMIT StatusNotifierItemRegistered(service);
    }
    void RegisterStatusNotifierHost(const QString&) {}

Q_SIGNALS:
    void StatusNotifierItemRegistered(const QString& service);
    void StatusNotifierHostRegistered();

private:
    QStringList items_;
};

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    ItemPanel panel;
    QDBusConnection bus = QDBusConnection::sessionBus();
    const auto everything = QDBusConnection::ExportAllContents;
    const bool ready = bus.registerObject(QStringLiteral("/StatusNotifierWatcher"), &panel, everything) &&
                       bus.registerService(QStringLiteral("org.kde.StatusNotifierWatcher"));
    if (!ready) return EXIT_FAILURE;
    Q_EMIT panel.StatusNotifierHostRegistered();
    return QCoreApplication::exec();
}

#include "item_panel.moc"
