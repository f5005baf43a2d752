// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

#include <cstdint>

namespace velmoriax::desktop {

/// A notification shown by the desktop itself, for where a window cannot place itself. One is shown at a time.
class DesktopNotification : public QObject {
    Q_OBJECT

public:
    explicit DesktopNotification(QObject* parent = nullptr);

    /// Shows a text; false when no service of the desktop shows notifications.
    bool show(const QString& title, const QString& text);

    void close();

Q_SIGNALS:
    /// The user wants to see the program.
    void chosen();
    void closed();

private Q_SLOTS:
    void onActionInvoked(uint id, const QString& action);
    void onNotificationClosed(uint id, uint reason);

private:
    void follow();

    std::uint32_t id_ = 0; ///< 0 while none is shown
    bool following_ = false;
};

} // namespace velmoriax::desktop
