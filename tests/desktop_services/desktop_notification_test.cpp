// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/desktop_notification.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QTest>
#include <QThread>

#include <gtest/gtest.h>

/// A service that shows notifications, on a bus and a thread of its own.
class FakeServer : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    struct Shown {
        uint replaced = 0;
        QString title, body;
        QStringList actions;
        QVariantMap hints;
    };
    QList<Shown> shown;
    QList<uint> closedIds;

public Q_SLOTS:
    uint Notify(const QString&, uint replaced, const QString&, const QString& title, const QString& body,
                const QStringList& actions, const QVariantMap& hints, int) {
        shown << Shown{replaced, title, body, actions, hints};
        return replaced ? replaced : 7;
    }
    void CloseNotification(uint id) {
        closedIds << id;
        Q_EMIT NotificationClosed(id, 3);
    }

Q_SIGNALS:
    void ActionInvoked(uint id, const QString& action);
    void NotificationClosed(uint id, uint reason);
};

namespace velmoriax::desktop {
namespace {

TEST(DesktopNotification, FollowsTheProtocolOfTheService) {
    DesktopNotification notification;
    EXPECT_FALSE(notification.show("title", "text")) << "there is no service yet";

    QThread thread;
    FakeServer server;
    QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "server");
    server.moveToThread(&thread);
    thread.start();
    // In its own thread, from which its signals are relayed.
    QMetaObject::invokeMethod(
        &server,
        [&] {
            bus.registerObject("/org/freedesktop/Notifications", &server, QDBusConnection::ExportAllContents);
            bus.registerService("org.freedesktop.Notifications");
        },
        Qt::BlockingQueuedConnection);

    int chosen = 0;
    int closed = 0;
    QObject::connect(&notification, &DesktopNotification::chosen, [&] { ++chosen; });
    QObject::connect(&notification, &DesktopNotification::closed, [&] { ++closed; });
    ASSERT_TRUE(notification.show("Biorhythms alert!", "a < b & c\r\nnext"));
    ASSERT_TRUE(notification.show("Biorhythms alert!", "again"));
    ASSERT_EQ(server.shown.size(), 2);
    EXPECT_EQ(server.shown[0].body, "a &lt; b &amp; c\nnext");
    EXPECT_EQ(server.shown[0].replaced, 0U);
    EXPECT_EQ(server.shown[1].replaced, 7U) << "one is shown at a time";
    EXPECT_EQ(server.shown[0].actions.value(0), "default");
    EXPECT_EQ(server.shown[0].hints.value("urgency").typeId(), QMetaType::UChar) << "servers refuse another type";

    // Repeated, since the bus tells the client only after a while who the new service is.
    const auto choose = [&](uint id) {
        QMetaObject::invokeMethod(&server, [&server, id] { Q_EMIT server.ActionInvoked(id, "default"); });
    };
    const auto closeByServer = [&] {
        QMetaObject::invokeMethod(&server, [&] { Q_EMIT server.NotificationClosed(7, 2); });
    };
    EXPECT_TRUE(QTest::qWaitFor([&] {
        if (chosen == 0) choose(7);
        return chosen > 0;
    }));
    closeByServer();
    ASSERT_TRUE(QTest::qWaitFor([&] { return closed == 1; }));
    chosen = 0;
    ASSERT_TRUE(notification.show("Biorhythms alert!", "once more"));
    choose(8);
    closeByServer();
    EXPECT_TRUE(QTest::qWaitFor([&] { return closed == 2; }));
    EXPECT_EQ(chosen, 0) << "another program's notification was chosen";
    notification.close();
    ASSERT_TRUE(notification.show("Biorhythms alert!", "third"));
    notification.close();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !server.closedIds.isEmpty(); }));
    EXPECT_EQ(server.closedIds, QList<uint>{7}) << "one that is closed is not closed again";
    thread.quit();
    thread.wait();
}

} // namespace
} // namespace velmoriax::desktop

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}

#include "desktop_notification_test.moc"
