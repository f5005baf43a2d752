// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLatin1String>

#include <optional>

namespace velmoriax::desktop {

/// The service that keeps the list of tray items on the session bus.
inline constexpr QLatin1String itemWatcherService("org.kde.StatusNotifierWatcher");
inline constexpr QLatin1String itemWatcherPath("/StatusNotifierWatcher");

/// The two protocols of a notification area: an item on the session bus, and a small X11 window inside the panel.
enum class TrayKind { item, window };

/// Whether a panel takes icons of that kind now. Does not use the toolkit's tray class.
bool trayIsThere(TrayKind kind);

/// The kind that the toolkit will choose at its first use; nothing while there is no panel.
std::optional<TrayKind> trayThatIsThere();

/// Whether the session has a bus. Without one the bus library would start its own, which takes long and is of no use.
bool sessionBusExists();

} // namespace velmoriax::desktop
